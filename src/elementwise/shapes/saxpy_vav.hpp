// The vav shape of vormSaxpy: every vector of an array, scaled, and one common vector,
// dst[n][i] = src1[n][i] val + src2[i].
#pragma once

#include "elementwise/layers.hpp"
#include "frame/call.hpp"

// The operands by layout, in the order and with the names of the exported prototypes.
#define SAXPY_VAV_PARAMS(T)                                                                                            \
    const T *pSrc1, int src1Stride0, int src1Stride2, T val, const T *pSrc2, int src2Stride2, T *pDst, int dstStride0, \
        int dstStride2, int len, int count
#define SAXPY_VAV_ARGS \
    pSrc1, src1Stride0, src1Stride2, val, pSrc2, src2Stride2, pDst, dstStride0, dstStride2, len, count
#define SAXPY_VAV_PARAMS_L(T)                                                                                        \
    const T *const *ppSrc1, int src1Shift, int src1Stride2, T val, const T *pSrc2, int src2Stride2, T *const *ppDst, \
        int dstShift, int dstStride2, int len, int count
#define SAXPY_VAV_ARGS_L \
    ppSrc1, src1Shift, src1Stride2, val, pSrc2, src2Stride2, ppDst, dstShift, dstStride2, len, count
#define SAXPY_VAV_PARAMS_P(T)                                                                             \
    const T *const *ppSrc1, int src1Shift, int src1Stride0, T val, const T *const *ppSrc2, int src2Shift, \
        T *const *ppDst, int dstShift, int dstStride0, int len, int count
#define SAXPY_VAV_ARGS_P ppSrc1, src1Shift, src1Stride0, val, ppSrc2, src2Shift, ppDst, dstShift, dstStride0, len, count

namespace vorm::elementwise {

constexpr Work saxpyVavWork(int len, int count, int picoseconds)
{
    return workOf(wrapMul(wrapAdd(wrapMul(2, count), 1), len), picoseconds, len, count);
}

template <class T>
VORM_INLINE auto saxpyVav(SAXPY_VAV_PARAMS(T))
{
    return arrayCallOf<T>(saxpyVavWork(len, count, byType<T>(130, 420)), count,
                          VectorArray{pSrc1, src1Stride0, src1Stride2}, Constant{val}, Vector{pSrc2, src2Stride2},
                          VectorArray{pDst, dstStride0, dstStride2}, Size{len});
}
template <class T>
VORM_INLINE auto saxpyVavL(SAXPY_VAV_PARAMS_L(T))
{
    return arrayCallOf<T>(saxpyVavWork(len, count, byType<T>(260, 460)), count,
                          VectorList{ppSrc1, src1Shift, src1Stride2}, Constant{val}, Vector{pSrc2, src2Stride2},
                          VectorList{ppDst, dstShift, dstStride2}, Size{len});
}
template <class T>
VORM_INLINE auto saxpyVavP(SAXPY_VAV_PARAMS_P(T))
{
    return arrayCallOf<T>(
        saxpyVavWork(len, count, byType<T>(135, 400)), count, VectorArrayPointers{ppSrc1, src1Shift, src1Stride0},
        Constant{val}, VectorPointers{ppSrc2, src2Shift}, VectorArrayPointers{ppDst, dstShift, dstStride0}, Size{len});
}

}  // namespace vorm::elementwise
