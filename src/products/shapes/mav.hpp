// The mav shape: an array of matrices and one vector common to all objects. Read transposed the matrices make
// the shape tav of it.
#pragma once

#include "frame/call.hpp"
#include "products/layers.hpp"
#include "products/paths.hpp"

// The operands by layout, in the order and with the names of the exported prototypes.
#define MAV_PARAMS(T)                                                                                                 \
    const T *pSrc1, int src1Stride0, int src1Stride1, int src1Stride2, int src1Width, int src1Height, const T *pSrc2, \
        int src2Stride2, int src2Len, T *pDst, int dstStride0, int dstStride2, int count
#define MAV_ARGS                                                                                            \
    pSrc1, src1Stride0, src1Stride1, src1Stride2, src1Width, src1Height, pSrc2, src2Stride2, src2Len, pDst, \
        dstStride0, dstStride2, count
#define MAV_PARAMS_L(T)                                                                                     \
    const T *const *ppSrc1, int src1Shift, int src1Stride1, int src1Stride2, int src1Width, int src1Height, \
        const T *pSrc2, int src2Stride2, int src2Len, T *const *ppDst, int dstShift, int dstStride2, int count
#define MAV_ARGS_L                                                                                                    \
    ppSrc1, src1Shift, src1Stride1, src1Stride2, src1Width, src1Height, pSrc2, src2Stride2, src2Len, ppDst, dstShift, \
        dstStride2, count
#define MAV_PARAMS_P(T)                                                                                            \
    const T *const *ppSrc1, int src1Shift, int src1Stride0, int src1Width, int src1Height, const T *const *ppSrc2, \
        int src2Shift, int src2Len, T *const *ppDst, int dstShift, int dstStride0, int count
#define MAV_ARGS_P                                                                                                  \
    ppSrc1, src1Shift, src1Stride0, src1Width, src1Height, ppSrc2, src2Shift, src2Len, ppDst, dstShift, dstStride0, \
        count

namespace vorm::products {

// K (N + 1) count + N with K rows and N columns of the matrix as it is used: mav H (W + 1) count + W, tav
// W (H + 1) count + H.
template <class As>
constexpr Work mavWork(int src1Width, int src1Height, int src2Len, int count, int picoseconds)
{
    return workOf(wrapAdd(wrapMul(As::rows(src1Width, src1Height), wrapAdd(src2Len, 1), count), src2Len), picoseconds,
                  src1Width, src1Height, count);
}

template <class As, class T>
VORM_INLINE auto mav(MAV_PARAMS(T))
{
    return arrayCallOf<T>(mavWork<As>(src1Width, src1Height, src2Len, count, byType<T>(130, 240)), count,
                          MatrixArray{pSrc1, src1Stride0, src1Stride1, src1Stride2}, Size{src1Width}, Size{src1Height},
                          Vector{pSrc2, src2Stride2}, Size{src2Len}, VectorArray{pDst, dstStride0, dstStride2},
                          Fit{As::columns(src1Width, src1Height), src2Len});
}
template <class As, class T>
VORM_INLINE auto mavL(MAV_PARAMS_L(T))
{
    return arrayCallOf<T>(mavWork<As>(src1Width, src1Height, src2Len, count, byType<T>(140, 240)), count,
                          MatrixList{ppSrc1, src1Shift, src1Stride1, src1Stride2}, Size{src1Width}, Size{src1Height},
                          Vector{pSrc2, src2Stride2}, Size{src2Len}, VectorList{ppDst, dstShift, dstStride2},
                          Fit{As::columns(src1Width, src1Height), src2Len});
}
template <class As, class T>
VORM_INLINE auto mavP(MAV_PARAMS_P(T))
{
    return arrayCallOf<T>(mavWork<As>(src1Width, src1Height, src2Len, count, byType<T>(130, 265)), count,
                          MatrixArrayPointers{ppSrc1, src1Shift, src1Stride0, src1Width}, Size{src1Width},
                          Size{src1Height}, VectorPointers{ppSrc2, src2Shift}, Size{src2Len},
                          VectorArrayPointers{ppDst, dstShift, dstStride0},
                          Fit{As::columns(src1Width, src1Height), src2Len});
}

}  // namespace vorm::products
