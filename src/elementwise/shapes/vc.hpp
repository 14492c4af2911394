// The vc shape, one vector and one constant, dst[i] = src[i] op val; and cv, the same with the
// operation turned round, dst[i] = val - src[i].
#pragma once

#include "elementwise/layers.hpp"
#include "frame/call.hpp"

// The operands by layout, in the order and with the names of the exported prototypes.
#define VC_PARAMS(T) const T *pSrc, int srcStride2, T val, T *pDst, int dstStride2, int len
#define VC_ARGS pSrc, srcStride2, val, pDst, dstStride2, len
#define VC_PARAMS_P(T) const T *const *ppSrc, int srcShift, T val, T *const *ppDst, int dstShift, int len
#define VC_ARGS_P ppSrc, srcShift, val, ppDst, dstShift, len

namespace vorm::elementwise {

template <class T>
VORM_INLINE auto vc(VC_PARAMS(T))
{
    return callOf<T>(Vector{pSrc, srcStride2}, Constant{val}, Vector{pDst, dstStride2}, Size{len});
}
template <class T>
VORM_INLINE auto vcP(VC_PARAMS_P(T))
{
    return callOf<T>(VectorPointers{ppSrc, srcShift}, Constant{val}, VectorPointers{ppDst, dstShift}, Size{len});
}

}  // namespace vorm::elementwise
