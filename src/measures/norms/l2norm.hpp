// vormL2Norm of one vector (v) and of an array of vectors (va).
#pragma once

#include "frame/call.hpp"
#include "measures/layers.hpp"

// The operands by layout, in the order and with the names of the exported prototypes.
#define L2_V_PARAMS(T) const T *pSrc, int srcStride2, T *pDst, int len
#define L2_V_ARGS pSrc, srcStride2, pDst, len
#define L2_V_PARAMS_P(T) const T *const *ppSrc, int srcShift, T *pDst, int len
#define L2_V_ARGS_P ppSrc, srcShift, pDst, len
#define L2_VA_PARAMS(T) const T *pSrc, int srcStride0, int srcStride2, T *pDst, int len, int count
#define L2_VA_ARGS pSrc, srcStride0, srcStride2, pDst, len, count
#define L2_VA_PARAMS_L(T) const T *const *ppSrc, int srcShift, int srcStride2, T *pDst, int len, int count
#define L2_VA_ARGS_L ppSrc, srcShift, srcStride2, pDst, len, count
#define L2_VA_PARAMS_P(T) const T *const *ppSrc, int srcShift, int srcStride0, T *pDst, int len, int count
#define L2_VA_ARGS_P ppSrc, srcShift, srcStride0, pDst, len, count

namespace vorm::measures {

template <class T>
VORM_INLINE constexpr Work l2NormWork(int len, int count)
{
    return workOf(wrapMul(len, count), byType<T>(130, 220), len, count);
}

template <class T>
VORM_INLINE auto l2NormV(L2_V_PARAMS(T))
{
    return callOf<T>(Vector{pSrc, srcStride2}, ObjectTable{pDst, 1}, Size{len});
}
template <class T>
VORM_INLINE auto l2NormVP(L2_V_PARAMS_P(T))
{
    return callOf<T>(VectorPointers{ppSrc, srcShift}, ObjectTable{pDst, 1}, Size{len});
}
template <class T>
VORM_INLINE auto l2NormVa(L2_VA_PARAMS(T))
{
    return arrayCallOf<T>(l2NormWork<T>(len, count), count, VectorArray{pSrc, srcStride0, srcStride2},
                          ObjectTable{pDst, 1}, Size{len});
}
template <class T>
VORM_INLINE auto l2NormVaL(L2_VA_PARAMS_L(T))
{
    return arrayCallOf<T>(l2NormWork<T>(len, count), count, VectorList{ppSrc, srcShift, srcStride2},
                          ObjectTable{pDst, 1}, Size{len});
}
template <class T>
VORM_INLINE auto l2NormVaP(L2_VA_PARAMS_P(T))
{
    return arrayCallOf<T>(l2NormWork<T>(len, count), count, VectorArrayPointers{ppSrc, srcShift, srcStride0},
                          ObjectTable{pDst, 1}, Size{len});
}

}  // namespace vorm::measures
