// The vav shape of vormLComb: every vector of an array and one common vector, with a factor for each,
// dst[n][i] = src1[n][i] val1 + src2[i] val2.
#pragma once

#include "elementwise/layers.hpp"
#include "frame/call.hpp"

// The operands by layout, in the order and with the names of the exported prototypes.
#define LCOMB_VAV_PARAMS(T)                                                                                     \
    const T *pSrc1, int src1Stride0, int src1Stride2, T val1, const T *pSrc2, int src2Stride2, T val2, T *pDst, \
        int dstStride0, int dstStride2, int len, int count
#define LCOMB_VAV_ARGS \
    pSrc1, src1Stride0, src1Stride2, val1, pSrc2, src2Stride2, val2, pDst, dstStride0, dstStride2, len, count
#define LCOMB_VAV_PARAMS_L(T)                                                                                \
    const T *const *ppSrc1, int src1Shift, int src1Stride2, T val1, const T *pSrc2, int src2Stride2, T val2, \
        T *const *ppDst, int dstShift, int dstStride2, int len, int count
#define LCOMB_VAV_ARGS_L \
    ppSrc1, src1Shift, src1Stride2, val1, pSrc2, src2Stride2, val2, ppDst, dstShift, dstStride2, len, count
#define LCOMB_VAV_PARAMS_P(T)                                                                                      \
    const T *const *ppSrc1, int src1Shift, int src1Stride0, T val1, const T *const *ppSrc2, int src2Shift, T val2, \
        T *const *ppDst, int dstShift, int dstStride0, int len, int count
#define LCOMB_VAV_ARGS_P \
    ppSrc1, src1Shift, src1Stride0, val1, ppSrc2, src2Shift, val2, ppDst, dstShift, dstStride0, len, count

namespace vorm::elementwise {

constexpr Work lCombVavWork(int len, int count, int picoseconds)
{
    return workOf(wrapMul(wrapAdd(wrapMul(2, count), 1), len), picoseconds, len, count);
}

template <class T>
VORM_INLINE auto lCombVav(LCOMB_VAV_PARAMS(T))
{
    return arrayCallOf<T>(lCombVavWork(len, count, byType<T>(130, 420)), count,
                          VectorArray{pSrc1, src1Stride0, src1Stride2}, Constant{val1}, Vector{pSrc2, src2Stride2},
                          Constant{val2}, VectorArray{pDst, dstStride0, dstStride2}, Size{len});
}
template <class T>
VORM_INLINE auto lCombVavL(LCOMB_VAV_PARAMS_L(T))
{
    return arrayCallOf<T>(lCombVavWork(len, count, byType<T>(260, 460)), count,
                          VectorList{ppSrc1, src1Shift, src1Stride2}, Constant{val1}, Vector{pSrc2, src2Stride2},
                          Constant{val2}, VectorList{ppDst, dstShift, dstStride2}, Size{len});
}
template <class T>
VORM_INLINE auto lCombVavP(LCOMB_VAV_PARAMS_P(T))
{
    return arrayCallOf<T>(lCombVavWork(len, count, byType<T>(135, 400)), count,
                          VectorArrayPointers{ppSrc1, src1Shift, src1Stride0}, Constant{val1},
                          VectorPointers{ppSrc2, src2Shift}, Constant{val2},
                          VectorArrayPointers{ppDst, dstShift, dstStride0}, Size{len});
}

}  // namespace vorm::elementwise
