// The vv shape of vormSaxpy: one scaled vector and one vector, dst[i] = src1[i] val + src2[i].
#pragma once

#include "elementwise/layers.hpp"
#include "frame/call.hpp"

// The operands by layout, in the order and with the names of the exported prototypes.
#define SAXPY_VV_PARAMS(T) \
    const T *pSrc1, int src1Stride2, T val, const T *pSrc2, int src2Stride2, T *pDst, int dstStride2, int len
#define SAXPY_VV_ARGS pSrc1, src1Stride2, val, pSrc2, src2Stride2, pDst, dstStride2, len
#define SAXPY_VV_PARAMS_P(T)                                                                              \
    const T *const *ppSrc1, int src1Shift, T val, const T *const *ppSrc2, int src2Shift, T *const *ppDst, \
        int dstShift, int len
#define SAXPY_VV_ARGS_P ppSrc1, src1Shift, val, ppSrc2, src2Shift, ppDst, dstShift, len

namespace vorm::elementwise {

template <class T>
VORM_INLINE auto saxpyVv(SAXPY_VV_PARAMS(T))
{
    return callOf<T>(Vector{pSrc1, src1Stride2}, Constant{val}, Vector{pSrc2, src2Stride2}, Vector{pDst, dstStride2},
                     Size{len});
}
template <class T>
VORM_INLINE auto saxpyVvP(SAXPY_VV_PARAMS_P(T))
{
    return callOf<T>(VectorPointers{ppSrc1, src1Shift}, Constant{val}, VectorPointers{ppSrc2, src2Shift},
                     VectorPointers{ppDst, dstShift}, Size{len});
}

}  // namespace vorm::elementwise
