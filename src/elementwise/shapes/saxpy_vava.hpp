// The vava shape of vormSaxpy: two arrays of vectors, the first one scaled,
// dst[n][i] = src1[n][i] val + src2[n][i].
#pragma once

#include "elementwise/layers.hpp"
#include "frame/call.hpp"

// The operands by layout, in the order and with the names of the exported prototypes.
#define SAXPY_VAVA_PARAMS(T)                                                                                   \
    const T *pSrc1, int src1Stride0, int src1Stride2, T val, const T *pSrc2, int src2Stride0, int src2Stride2, \
        T *pDst, int dstStride0, int dstStride2, int len, int count
#define SAXPY_VAVA_ARGS \
    pSrc1, src1Stride0, src1Stride2, val, pSrc2, src2Stride0, src2Stride2, pDst, dstStride0, dstStride2, len, count
#define SAXPY_VAVA_PARAMS_L(T)                                                                            \
    const T *const *ppSrc1, int src1Shift, int src1Stride2, T val, const T *const *ppSrc2, int src2Shift, \
        int src2Stride2, T *const *ppDst, int dstShift, int dstStride2, int len, int count
#define SAXPY_VAVA_ARGS_L \
    ppSrc1, src1Shift, src1Stride2, val, ppSrc2, src2Shift, src2Stride2, ppDst, dstShift, dstStride2, len, count
#define SAXPY_VAVA_PARAMS_P(T)                                                                            \
    const T *const *ppSrc1, int src1Shift, int src1Stride0, T val, const T *const *ppSrc2, int src2Shift, \
        int src2Stride0, T *const *ppDst, int dstShift, int dstStride0, int len, int count
#define SAXPY_VAVA_ARGS_P \
    ppSrc1, src1Shift, src1Stride0, val, ppSrc2, src2Shift, src2Stride0, ppDst, dstShift, dstStride0, len, count

namespace vorm::elementwise {

constexpr Work saxpyVavaWork(int len, int count, int picoseconds)
{
    return workOf(wrapMul(3, count, len), picoseconds, len, count);
}

template <class T>
VORM_INLINE auto saxpyVava(SAXPY_VAVA_PARAMS(T))
{
    return arrayCallOf<T>(saxpyVavaWork(len, count, byType<T>(300, 660)), count,
                          VectorArray{pSrc1, src1Stride0, src1Stride2}, Constant{val},
                          VectorArray{pSrc2, src2Stride0, src2Stride2}, VectorArray{pDst, dstStride0, dstStride2},
                          Size{len});
}
template <class T>
VORM_INLINE auto saxpyVavaL(SAXPY_VAVA_PARAMS_L(T))
{
    return arrayCallOf<T>(
        saxpyVavaWork(len, count, byType<T>(400, 660)), count, VectorList{ppSrc1, src1Shift, src1Stride2},
        Constant{val}, VectorList{ppSrc2, src2Shift, src2Stride2}, VectorList{ppDst, dstShift, dstStride2}, Size{len});
}
template <class T>
VORM_INLINE auto saxpyVavaP(SAXPY_VAVA_PARAMS_P(T))
{
    return arrayCallOf<T>(saxpyVavaWork(len, count, byType<T>(270, 570)), count,
                          VectorArrayPointers{ppSrc1, src1Shift, src1Stride0}, Constant{val},
                          VectorArrayPointers{ppSrc2, src2Shift, src2Stride0},
                          VectorArrayPointers{ppDst, dstShift, dstStride0}, Size{len});
}

}  // namespace vorm::elementwise
