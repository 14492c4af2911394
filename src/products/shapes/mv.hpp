// The mv shape: one matrix and one vector. Read transposed the matrix makes the shape tv of it.
#pragma once

#include "frame/call.hpp"
#include "products/layers.hpp"

// The operands by layout, in the order and with the names of the exported prototypes.
#define MV_PARAMS(T)                                                                                                  \
    const T *pSrc1, int src1Stride1, int src1Stride2, int src1Width, int src1Height, const T *pSrc2, int src2Stride2, \
        int src2Len, T *pDst, int dstStride2
#define MV_ARGS pSrc1, src1Stride1, src1Stride2, src1Width, src1Height, pSrc2, src2Stride2, src2Len, pDst, dstStride2
#define MV_PARAMS_P(T)                                                                                           \
    const T *const *ppSrc1, int src1Shift, int src1Width, int src1Height, const T *const *ppSrc2, int src2Shift, \
        int src2Len, T *const *ppDst, int dstShift
#define MV_ARGS_P ppSrc1, src1Shift, src1Width, src1Height, ppSrc2, src2Shift, src2Len, ppDst, dstShift

namespace vorm::products {

template <class As, class T>
VORM_INLINE auto mv(MV_PARAMS(T))
{
    return callOf<T>(Matrix{pSrc1, src1Stride1, src1Stride2}, Size{src1Width}, Size{src1Height},
                     Vector{pSrc2, src2Stride2}, Size{src2Len}, Vector{pDst, dstStride2},
                     Fit{As::columns(src1Width, src1Height), src2Len});
}
template <class As, class T>
VORM_INLINE auto mvP(MV_PARAMS_P(T))
{
    return callOf<T>(MatrixPointers{ppSrc1, src1Shift, src1Width}, Size{src1Width}, Size{src1Height},
                     VectorPointers{ppSrc2, src2Shift}, Size{src2Len}, VectorPointers{ppDst, dstShift},
                     Fit{As::columns(src1Width, src1Height), src2Len});
}

}  // namespace vorm::products
