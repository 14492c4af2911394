// The vv shape: one vector and one vector, dst[i] = src1[i] op src2[i].
#pragma once

#include "elementwise/layers.hpp"
#include "frame/call.hpp"

// The operands by layout, in the order and with the names of the exported prototypes.
#define VV_PARAMS(T) const T *pSrc1, int src1Stride2, const T *pSrc2, int src2Stride2, T *pDst, int dstStride2, int len
#define VV_ARGS pSrc1, src1Stride2, pSrc2, src2Stride2, pDst, dstStride2, len
#define VV_PARAMS_P(T) \
    const T *const *ppSrc1, int src1Shift, const T *const *ppSrc2, int src2Shift, T *const *ppDst, int dstShift, int len
#define VV_ARGS_P ppSrc1, src1Shift, ppSrc2, src2Shift, ppDst, dstShift, len

namespace vorm::elementwise {

template <class T>
VORM_INLINE auto vv(VV_PARAMS(T))
{
    return callOf<T>(Vector{pSrc1, src1Stride2}, Vector{pSrc2, src2Stride2}, Vector{pDst, dstStride2}, Size{len});
}
template <class T>
VORM_INLINE auto vvP(VV_PARAMS_P(T))
{
    return callOf<T>(VectorPointers{ppSrc1, src1Shift}, VectorPointers{ppSrc2, src2Shift},
                     VectorPointers{ppDst, dstShift}, Size{len});
}

}  // namespace vorm::elementwise
