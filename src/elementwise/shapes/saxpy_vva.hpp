// The vva shape of vormSaxpy: one common vector, scaled, and every vector of an array,
// dst[n][i] = src1[i] val + src2[n][i].
#pragma once

#include "elementwise/layers.hpp"
#include "frame/call.hpp"

// The operands by layout, in the order and with the names of the exported prototypes.
#define SAXPY_VVA_PARAMS(T)                                                                                            \
    const T *pSrc1, int src1Stride2, T val, const T *pSrc2, int src2Stride0, int src2Stride2, T *pDst, int dstStride0, \
        int dstStride2, int len, int count
#define SAXPY_VVA_ARGS \
    pSrc1, src1Stride2, val, pSrc2, src2Stride0, src2Stride2, pDst, dstStride0, dstStride2, len, count
#define SAXPY_VVA_PARAMS_L(T)                                                                                        \
    const T *pSrc1, int src1Stride2, T val, const T *const *ppSrc2, int src2Shift, int src2Stride2, T *const *ppDst, \
        int dstShift, int dstStride2, int len, int count
#define SAXPY_VVA_ARGS_L \
    pSrc1, src1Stride2, val, ppSrc2, src2Shift, src2Stride2, ppDst, dstShift, dstStride2, len, count
#define SAXPY_VVA_PARAMS_P(T)                                                                             \
    const T *const *ppSrc1, int src1Shift, T val, const T *const *ppSrc2, int src2Shift, int src2Stride0, \
        T *const *ppDst, int dstShift, int dstStride0, int len, int count
#define SAXPY_VVA_ARGS_P ppSrc1, src1Shift, val, ppSrc2, src2Shift, src2Stride0, ppDst, dstShift, dstStride0, len, count

namespace vorm::elementwise {

constexpr Work saxpyVvaWork(int len, int count, int picoseconds)
{
    return workOf(wrapMul(wrapAdd(wrapMul(2, count), 1), len), picoseconds, len, count);
}

template <class T>
VORM_INLINE auto saxpyVva(SAXPY_VVA_PARAMS(T))
{
    return arrayCallOf<T>(saxpyVvaWork(len, count, byType<T>(130, 420)), count, Vector{pSrc1, src1Stride2},
                          Constant{val}, VectorArray{pSrc2, src2Stride0, src2Stride2},
                          VectorArray{pDst, dstStride0, dstStride2}, Size{len});
}
template <class T>
VORM_INLINE auto saxpyVvaL(SAXPY_VVA_PARAMS_L(T))
{
    return arrayCallOf<T>(saxpyVvaWork(len, count, byType<T>(260, 460)), count, Vector{pSrc1, src1Stride2},
                          Constant{val}, VectorList{ppSrc2, src2Shift, src2Stride2},
                          VectorList{ppDst, dstShift, dstStride2}, Size{len});
}
template <class T>
VORM_INLINE auto saxpyVvaP(SAXPY_VVA_PARAMS_P(T))
{
    return arrayCallOf<T>(saxpyVvaWork(len, count, byType<T>(135, 400)), count, VectorPointers{ppSrc1, src1Shift},
                          Constant{val}, VectorArrayPointers{ppSrc2, src2Shift, src2Stride0},
                          VectorArrayPointers{ppDst, dstShift, dstStride0}, Size{len});
}

}  // namespace vorm::elementwise
