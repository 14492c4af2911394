// The mva shape: one matrix common to all objects and an array of vectors. Read transposed the matrix makes
// the shape tva of it.
#pragma once

#include "frame/call.hpp"
#include "products/layers.hpp"
#include "products/paths.hpp"

// The operands by layout, in the order and with the names of the exported prototypes.
#define MVA_PARAMS(T)                                                                                                 \
    const T *pSrc1, int src1Stride1, int src1Stride2, int src1Width, int src1Height, const T *pSrc2, int src2Stride0, \
        int src2Stride2, int src2Len, T *pDst, int dstStride0, int dstStride2, int count
#define MVA_ARGS                                                                                            \
    pSrc1, src1Stride1, src1Stride2, src1Width, src1Height, pSrc2, src2Stride0, src2Stride2, src2Len, pDst, \
        dstStride0, dstStride2, count
#define MVA_PARAMS_L(T)                                                                                      \
    const T *pSrc1, int src1Stride1, int src1Stride2, int src1Width, int src1Height, const T *const *ppSrc2, \
        int src2Shift, int src2Stride2, int src2Len, T *const *ppDst, int dstShift, int dstStride2, int count
#define MVA_ARGS_L                                                                                                    \
    pSrc1, src1Stride1, src1Stride2, src1Width, src1Height, ppSrc2, src2Shift, src2Stride2, src2Len, ppDst, dstShift, \
        dstStride2, count
#define MVA_PARAMS_P(T)                                                                                          \
    const T *const *ppSrc1, int src1Shift, int src1Width, int src1Height, const T *const *ppSrc2, int src2Shift, \
        int src2Stride0, int src2Len, T *const *ppDst, int dstShift, int dstStride0, int count
#define MVA_ARGS_P                                                                                                  \
    ppSrc1, src1Shift, src1Width, src1Height, ppSrc2, src2Shift, src2Stride0, src2Len, ppDst, dstShift, dstStride0, \
        count

namespace vorm::products {

// W H + (W + H) count
constexpr Work mvaWork(int src1Width, int src1Height, int count, int picoseconds)
{
    return workOf(wrapAdd(wrapMul(src1Width, src1Height), wrapMul(wrapAdd(src1Width, src1Height), count)), picoseconds,
                  src1Width, src1Height, count);
}

template <class As, class T>
VORM_INLINE auto mva(MVA_PARAMS(T))
{
    return arrayCallOf<T>(mvaWork(src1Width, src1Height, count, byType<T>(70, 105)), count,
                          Matrix{pSrc1, src1Stride1, src1Stride2}, Size{src1Width}, Size{src1Height},
                          VectorArray{pSrc2, src2Stride0, src2Stride2}, Size{src2Len},
                          VectorArray{pDst, dstStride0, dstStride2}, Fit{As::columns(src1Width, src1Height), src2Len});
}
template <class As, class T>
VORM_INLINE auto mvaL(MVA_PARAMS_L(T))
{
    return arrayCallOf<T>(mvaWork(src1Width, src1Height, count, byType<T>(95, 120)), count,
                          Matrix{pSrc1, src1Stride1, src1Stride2}, Size{src1Width}, Size{src1Height},
                          VectorList{ppSrc2, src2Shift, src2Stride2}, Size{src2Len},
                          VectorList{ppDst, dstShift, dstStride2}, Fit{As::columns(src1Width, src1Height), src2Len});
}
template <class As, class T>
VORM_INLINE auto mvaP(MVA_PARAMS_P(T))
{
    return arrayCallOf<T>(
        mvaWork(src1Width, src1Height, count, byType<T>(56, 115)), count, MatrixPointers{ppSrc1, src1Shift, src1Width},
        Size{src1Width}, Size{src1Height}, VectorArrayPointers{ppSrc2, src2Shift, src2Stride0}, Size{src2Len},
        VectorArrayPointers{ppDst, dstShift, dstStride0}, Fit{As::columns(src1Width, src1Height), src2Len});
}

}  // namespace vorm::products
