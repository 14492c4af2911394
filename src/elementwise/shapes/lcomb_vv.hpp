// The vv shape of vormLComb: two vectors, each with its factor,
// dst[i] = src1[i] val1 + src2[i] val2.
#pragma once

#include "elementwise/layers.hpp"
#include "frame/call.hpp"

// The operands by layout, in the order and with the names of the exported prototypes.
#define LCOMB_VV_PARAMS(T) \
    const T *pSrc1, int src1Stride2, T val1, const T *pSrc2, int src2Stride2, T val2, T *pDst, int dstStride2, int len
#define LCOMB_VV_ARGS pSrc1, src1Stride2, val1, pSrc2, src2Stride2, val2, pDst, dstStride2, len
#define LCOMB_VV_PARAMS_P(T)                                                                                       \
    const T *const *ppSrc1, int src1Shift, T val1, const T *const *ppSrc2, int src2Shift, T val2, T *const *ppDst, \
        int dstShift, int len
#define LCOMB_VV_ARGS_P ppSrc1, src1Shift, val1, ppSrc2, src2Shift, val2, ppDst, dstShift, len

namespace vorm::elementwise {

template <class T>
VORM_INLINE auto lCombVv(LCOMB_VV_PARAMS(T))
{
    return callOf<T>(Vector{pSrc1, src1Stride2}, Constant{val1}, Vector{pSrc2, src2Stride2}, Constant{val2},
                     Vector{pDst, dstStride2}, Size{len});
}
template <class T>
VORM_INLINE auto lCombVvP(LCOMB_VV_PARAMS_P(T))
{
    return callOf<T>(VectorPointers{ppSrc1, src1Shift}, Constant{val1}, VectorPointers{ppSrc2, src2Shift},
                     Constant{val2}, VectorPointers{ppDst, dstShift}, Size{len});
}

}  // namespace vorm::elementwise
