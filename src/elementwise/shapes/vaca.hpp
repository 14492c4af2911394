// The vaca shape, an array of vectors with one constant for each, dst[n][i] = src[n][i] op val[n];
// and cava, the same with the operation turned round, dst[n][i] = val[n] - src[n][i].
#pragma once

#include "elementwise/layers.hpp"
#include "frame/call.hpp"

// The operands by layout, in the order and with the names of the exported prototypes.
#define VACA_PARAMS(T)                                                                                     \
    const T *pSrc, int srcStride0, int srcStride2, const T *pVal, int valStride0, T *pDst, int dstStride0, \
        int dstStride2, int len, int count
#define VACA_ARGS pSrc, srcStride0, srcStride2, pVal, valStride0, pDst, dstStride0, dstStride2, len, count
#define VACA_PARAMS_L(T)                                                                                       \
    const T *const *ppSrc, int srcShift, int srcStride2, const T *const *ppVal, int valShift, T *const *ppDst, \
        int dstShift, int dstStride2, int len, int count
#define VACA_ARGS_L ppSrc, srcShift, srcStride2, ppVal, valShift, ppDst, dstShift, dstStride2, len, count
#define VACA_PARAMS_P(T)                                                                                               \
    const T *const *ppSrc, int srcShift, int srcStride0, const T *pVal, int valStride0, T *const *ppDst, int dstShift, \
        int dstStride0, int len, int count
#define VACA_ARGS_P ppSrc, srcShift, srcStride0, pVal, valStride0, ppDst, dstShift, dstStride0, len, count

namespace vorm::elementwise {

constexpr Work vacaWork(int len, int count, int picoseconds)
{
    return workOf(wrapMul(count, wrapAdd(wrapMul(2, len), 1)), picoseconds, len, count);
}

template <class T>
VORM_INLINE auto vaca(VACA_PARAMS(T))
{
    return arrayCallOf<T>(vacaWork(len, count, byType<T>(165, 460)), count, VectorArray{pSrc, srcStride0, srcStride2},
                          ConstantArray{pVal, valStride0}, VectorArray{pDst, dstStride0, dstStride2}, Size{len});
}
template <class T>
VORM_INLINE auto vacaL(VACA_PARAMS_L(T))
{
    return arrayCallOf<T>(vacaWork(len, count, byType<T>(340, 550)), count, VectorList{ppSrc, srcShift, srcStride2},
                          ConstantList{ppVal, valShift}, VectorList{ppDst, dstShift, dstStride2}, Size{len});
}
template <class T>
VORM_INLINE auto vacaP(VACA_PARAMS_P(T))
{
    return arrayCallOf<T>(vacaWork(len, count, byType<T>(170, 480)), count,
                          VectorArrayPointers{ppSrc, srcShift, srcStride0}, ConstantArray{pVal, valStride0},
                          VectorArrayPointers{ppDst, dstShift, dstStride0}, Size{len});
}

}  // namespace vorm::elementwise
