// The vac shape, an array of vectors and one constant, dst[n][i] = src[n][i] op val; and cva, the
// same with the operation turned round, dst[n][i] = val - src[n][i].
#pragma once

#include "elementwise/layers.hpp"
#include "frame/call.hpp"

// The operands by layout, in the order and with the names of the exported prototypes.
#define VAC_PARAMS(T) \
    const T *pSrc, int srcStride0, int srcStride2, T val, T *pDst, int dstStride0, int dstStride2, int len, int count
#define VAC_ARGS pSrc, srcStride0, srcStride2, val, pDst, dstStride0, dstStride2, len, count
#define VAC_PARAMS_L(T)                                                                                        \
    const T *const *ppSrc, int srcShift, int srcStride2, T val, T *const *ppDst, int dstShift, int dstStride2, \
        int len, int count
#define VAC_ARGS_L ppSrc, srcShift, srcStride2, val, ppDst, dstShift, dstStride2, len, count
#define VAC_PARAMS_P(T)                                                                                        \
    const T *const *ppSrc, int srcShift, int srcStride0, T val, T *const *ppDst, int dstShift, int dstStride0, \
        int len, int count
#define VAC_ARGS_P ppSrc, srcShift, srcStride0, val, ppDst, dstShift, dstStride0, len, count

namespace vorm::elementwise {

constexpr Work vacWork(int len, int count, int picoseconds)
{
    return workOf(wrapMul(wrapAdd(wrapMul(2, count), 1), len), picoseconds, len, count);
}

template <class T>
VORM_INLINE auto vac(VAC_PARAMS(T))
{
    return arrayCallOf<T>(vacWork(len, count, byType<T>(130, 420)), count, VectorArray{pSrc, srcStride0, srcStride2},
                          Constant{val}, VectorArray{pDst, dstStride0, dstStride2}, Size{len});
}
template <class T>
VORM_INLINE auto vacL(VAC_PARAMS_L(T))
{
    return arrayCallOf<T>(vacWork(len, count, byType<T>(260, 460)), count, VectorList{ppSrc, srcShift, srcStride2},
                          Constant{val}, VectorList{ppDst, dstShift, dstStride2}, Size{len});
}
template <class T>
VORM_INLINE auto vacP(VAC_PARAMS_P(T))
{
    return arrayCallOf<T>(vacWork(len, count, byType<T>(135, 400)), count,
                          VectorArrayPointers{ppSrc, srcShift, srcStride0}, Constant{val},
                          VectorArrayPointers{ppDst, dstShift, dstStride0}, Size{len});
}

// cva measures its objects alone: 2 count.
template <class Call>
VORM_INLINE constexpr Call cvaOf(Call call)
{
    call.work.measure = wrapMul(2, call.count);
    return call;
}

}  // namespace vorm::elementwise
