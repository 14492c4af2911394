// The mvav shape of vormGaxpy: one matrix common to all objects, an array of vectors, and one vector that is added to
// all their products.
#pragma once

#include "frame/call.hpp"
#include "products/layers.hpp"

// The operands by layout, in the order and with the names of the exported prototypes.
#define GAXPY_MVAV_PARAMS(T)                                                                                          \
    const T *pSrc1, int src1Stride1, int src1Stride2, int src1Width, int src1Height, const T *pSrc2, int src2Stride0, \
        int src2Stride2, int src2Len, const T *pSrc3, int src3Stride2, int src3Len, T *pDst, int dstStride0,          \
        int dstStride2, int count
#define GAXPY_MVAV_ARGS                                                                                      \
    pSrc1, src1Stride1, src1Stride2, src1Width, src1Height, pSrc2, src2Stride0, src2Stride2, src2Len, pSrc3, \
        src3Stride2, src3Len, pDst, dstStride0, dstStride2, count
#define GAXPY_MVAV_PARAMS_L(T)                                                                                      \
    const T *pSrc1, int src1Stride1, int src1Stride2, int src1Width, int src1Height, const T *const *ppSrc2,        \
        int src2Shift, int src2Stride2, int src2Len, const T *pSrc3, int src3Stride2, int src3Len, T *const *ppDst, \
        int dstShift, int dstStride2, int count
#define GAXPY_MVAV_ARGS_L                                                                                   \
    pSrc1, src1Stride1, src1Stride2, src1Width, src1Height, ppSrc2, src2Shift, src2Stride2, src2Len, pSrc3, \
        src3Stride2, src3Len, ppDst, dstShift, dstStride2, count
#define GAXPY_MVAV_PARAMS_P(T)                                                                                   \
    const T *const *ppSrc1, int src1Shift, int src1Width, int src1Height, const T *const *ppSrc2, int src2Shift, \
        int src2Stride0, int src2Len, const T *const *ppSrc3, int src3Shift, int src3Len, T *const *ppDst,       \
        int dstShift, int dstStride0, int count
#define GAXPY_MVAV_ARGS_P                                                                                          \
    ppSrc1, src1Shift, src1Width, src1Height, ppSrc2, src2Shift, src2Stride0, src2Len, ppSrc3, src3Shift, src3Len, \
        ppDst, dstShift, dstStride0, count

namespace vorm::products {

// len2 count + len3 (count + 1)
constexpr Work gaxpyMvavWork(int src2Len, int src3Len, int count, int picoseconds)
{
    return workOf(wrapAdd(wrapMul(src2Len, count), wrapMul(src3Len, wrapAdd(count, 1))), picoseconds, src2Len, src3Len,
                  count);
}

template <class T>
VORM_INLINE auto gaxpyMvav(GAXPY_MVAV_PARAMS(T))
{
    return arrayCallOf<T>(gaxpyMvavWork(src2Len, src3Len, count, byType<T>(68, 100)), count,
                          Matrix{pSrc1, src1Stride1, src1Stride2}, Size{src1Width}, Size{src1Height},
                          VectorArray{pSrc2, src2Stride0, src2Stride2}, Size{src2Len}, Vector{pSrc3, src3Stride2},
                          Size{src3Len}, VectorArray{pDst, dstStride0, dstStride2}, Fit{src1Width, src2Len},
                          Fit{src1Height, src3Len});
}
template <class T>
VORM_INLINE auto gaxpyMvavL(GAXPY_MVAV_PARAMS_L(T))
{
    return arrayCallOf<T>(gaxpyMvavWork(src2Len, src3Len, count, byType<T>(80, 115)), count,
                          Matrix{pSrc1, src1Stride1, src1Stride2}, Size{src1Width}, Size{src1Height},
                          VectorList{ppSrc2, src2Shift, src2Stride2}, Size{src2Len}, Vector{pSrc3, src3Stride2},
                          Size{src3Len}, VectorList{ppDst, dstShift, dstStride2}, Fit{src1Width, src2Len},
                          Fit{src1Height, src3Len});
}
template <class T>
VORM_INLINE auto gaxpyMvavP(GAXPY_MVAV_PARAMS_P(T))
{
    return arrayCallOf<T>(
        gaxpyMvavWork(src2Len, src3Len, count, byType<T>(50, 98)), count, MatrixPointers{ppSrc1, src1Shift, src1Width},
        Size{src1Width}, Size{src1Height}, VectorArrayPointers{ppSrc2, src2Shift, src2Stride0}, Size{src2Len},
        VectorPointers{ppSrc3, src3Shift}, Size{src3Len}, VectorArrayPointers{ppDst, dstShift, dstStride0},
        Fit{src1Width, src2Len}, Fit{src1Height, src3Len});
}

}  // namespace vorm::products
