// The vca shape, one common vector and an array of constants, dst[n][i] = src[i] op val[n]; and cav,
// the same with the operation turned round, dst[n][i] = val[n] - src[i].
#pragma once

#include "elementwise/layers.hpp"
#include "frame/call.hpp"

// The operands by layout, in the order and with the names of the exported prototypes.
#define VCA_PARAMS(T)                                                                                               \
    const T *pSrc, int srcStride2, const T *pVal, int valStride0, T *pDst, int dstStride0, int dstStride2, int len, \
        int count
#define VCA_ARGS pSrc, srcStride2, pVal, valStride0, pDst, dstStride0, dstStride2, len, count
#define VCA_PARAMS_L(T)                                                                                                \
    const T *pSrc, int srcStride2, const T *const *ppVal, int valShift, T *const *ppDst, int dstShift, int dstStride2, \
        int len, int count
#define VCA_ARGS_L pSrc, srcStride2, ppVal, valShift, ppDst, dstShift, dstStride2, len, count
#define VCA_PARAMS_P(T)                                                                                                \
    const T *const *ppSrc, int srcShift, const T *pVal, int valStride0, T *const *ppDst, int dstShift, int dstStride0, \
        int len, int count
#define VCA_ARGS_P ppSrc, srcShift, pVal, valStride0, ppDst, dstShift, dstStride0, len, count

namespace vorm::elementwise {

constexpr Work vcaWork(int len, int count, int picoseconds)
{
    return workOf(wrapAdd(wrapMul(len, count), len, count), picoseconds, len, count);
}

template <class T>
VORM_INLINE auto vca(VCA_PARAMS(T))
{
    return arrayCallOf<T>(vcaWork(len, count, byType<T>(73, 230)), count, Vector{pSrc, srcStride2},
                          ConstantArray{pVal, valStride0}, VectorArray{pDst, dstStride0, dstStride2}, Size{len});
}
template <class T>
VORM_INLINE auto vcaL(VCA_PARAMS_L(T))
{
    return arrayCallOf<T>(vcaWork(len, count, byType<T>(175, 360)), count, Vector{pSrc, srcStride2},
                          ConstantList{ppVal, valShift}, VectorList{ppDst, dstShift, dstStride2}, Size{len});
}
template <class T>
VORM_INLINE auto vcaP(VCA_PARAMS_P(T))
{
    return arrayCallOf<T>(vcaWork(len, count, byType<T>(78, 225)), count, VectorPointers{ppSrc, srcShift},
                          ConstantArray{pVal, valStride0}, VectorArrayPointers{ppDst, dstShift, dstStride0}, Size{len});
}

}  // namespace vorm::elementwise
