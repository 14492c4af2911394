// The mava shape: an array of matrices and an array of vectors. Read transposed the matrices make the shape
// tava of it.
#pragma once

#include "frame/call.hpp"
#include "products/layers.hpp"
#include "products/paths.hpp"

// The operands by layout, in the order and with the names of the exported prototypes.
#define MAVA_PARAMS(T)                                                                                                \
    const T *pSrc1, int src1Stride0, int src1Stride1, int src1Stride2, int src1Width, int src1Height, const T *pSrc2, \
        int src2Stride0, int src2Stride2, int src2Len, T *pDst, int dstStride0, int dstStride2, int count
#define MAVA_ARGS                                                                                                  \
    pSrc1, src1Stride0, src1Stride1, src1Stride2, src1Width, src1Height, pSrc2, src2Stride0, src2Stride2, src2Len, \
        pDst, dstStride0, dstStride2, count
#define MAVA_PARAMS_L(T)                                                                                    \
    const T *const *ppSrc1, int src1Shift, int src1Stride1, int src1Stride2, int src1Width, int src1Height, \
        const T *const *ppSrc2, int src2Shift, int src2Stride2, int src2Len, T *const *ppDst, int dstShift, \
        int dstStride2, int count
#define MAVA_ARGS_L                                                                                              \
    ppSrc1, src1Shift, src1Stride1, src1Stride2, src1Width, src1Height, ppSrc2, src2Shift, src2Stride2, src2Len, \
        ppDst, dstShift, dstStride2, count
#define MAVA_PARAMS_P(T)                                                                                           \
    const T *const *ppSrc1, int src1Shift, int src1Stride0, int src1Width, int src1Height, const T *const *ppSrc2, \
        int src2Shift, int src2Stride0, int src2Len, T *const *ppDst, int dstShift, int dstStride0, int count
#define MAVA_ARGS_P                                                                                                  \
    ppSrc1, src1Shift, src1Stride0, src1Width, src1Height, ppSrc2, src2Shift, src2Stride0, src2Len, ppDst, dstShift, \
        dstStride0, count

namespace vorm::products {

// (W (H + 1) + H) count
constexpr Work mavaWork(int src1Width, int src1Height, int count, int picoseconds)
{
    return workOf(wrapMul(wrapAdd(wrapMul(src1Width, wrapAdd(src1Height, 1)), src1Height), count), picoseconds,
                  src1Width, src1Height, count);
}

template <class As, class T>
VORM_INLINE auto mava(MAVA_PARAMS(T))
{
    return arrayCallOf<T>(mavaWork(src1Width, src1Height, count, byType<T>(145, 265)), count,
                          MatrixArray{pSrc1, src1Stride0, src1Stride1, src1Stride2}, Size{src1Width}, Size{src1Height},
                          VectorArray{pSrc2, src2Stride0, src2Stride2}, Size{src2Len},
                          VectorArray{pDst, dstStride0, dstStride2}, Fit{As::columns(src1Width, src1Height), src2Len});
}
template <class As, class T>
VORM_INLINE auto mavaL(MAVA_PARAMS_L(T))
{
    return arrayCallOf<T>(mavaWork(src1Width, src1Height, count, byType<T>(160, 280)), count,
                          MatrixList{ppSrc1, src1Shift, src1Stride1, src1Stride2}, Size{src1Width}, Size{src1Height},
                          VectorList{ppSrc2, src2Shift, src2Stride2}, Size{src2Len},
                          VectorList{ppDst, dstShift, dstStride2}, Fit{As::columns(src1Width, src1Height), src2Len});
}
template <class As, class T>
VORM_INLINE auto mavaP(MAVA_PARAMS_P(T))
{
    return arrayCallOf<T>(mavaWork(src1Width, src1Height, count, byType<T>(140, 280)), count,
                          MatrixArrayPointers{ppSrc1, src1Shift, src1Stride0, src1Width}, Size{src1Width},
                          Size{src1Height}, VectorArrayPointers{ppSrc2, src2Shift, src2Stride0}, Size{src2Len},
                          VectorArrayPointers{ppDst, dstShift, dstStride0},
                          Fit{As::columns(src1Width, src1Height), src2Len});
}

}  // namespace vorm::products
