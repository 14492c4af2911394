// The mv shape of vormGaxpy: one matrix, one vector, and one that is added to their product.
#pragma once

#include "frame/call.hpp"
#include "products/layers.hpp"

// The operands by layout, in the order and with the names of the exported prototypes.
#define GAXPY_MV_PARAMS(T)                                                                                            \
    const T *pSrc1, int src1Stride1, int src1Stride2, int src1Width, int src1Height, const T *pSrc2, int src2Stride2, \
        int src2Len, const T *pSrc3, int src3Stride2, int src3Len, T *pDst, int dstStride2
#define GAXPY_MV_ARGS                                                                                                 \
    pSrc1, src1Stride1, src1Stride2, src1Width, src1Height, pSrc2, src2Stride2, src2Len, pSrc3, src3Stride2, src3Len, \
        pDst, dstStride2
#define GAXPY_MV_PARAMS_P(T)                                                                                     \
    const T *const *ppSrc1, int src1Shift, int src1Width, int src1Height, const T *const *ppSrc2, int src2Shift, \
        int src2Len, const T *const *ppSrc3, int src3Shift, int src3Len, T *const *ppDst, int dstShift
#define GAXPY_MV_ARGS_P \
    ppSrc1, src1Shift, src1Width, src1Height, ppSrc2, src2Shift, src2Len, ppSrc3, src3Shift, src3Len, ppDst, dstShift

namespace vorm::products {

template <class T>
VORM_INLINE auto gaxpyMv(GAXPY_MV_PARAMS(T))
{
    return callOf<T>(Matrix{pSrc1, src1Stride1, src1Stride2}, Size{src1Width}, Size{src1Height},
                     Vector{pSrc2, src2Stride2}, Size{src2Len}, Vector{pSrc3, src3Stride2}, Size{src3Len},
                     Vector{pDst, dstStride2}, Fit{src1Width, src2Len}, Fit{src1Height, src3Len});
}
template <class T>
VORM_INLINE auto gaxpyMvP(GAXPY_MV_PARAMS_P(T))
{
    return callOf<T>(MatrixPointers{ppSrc1, src1Shift, src1Width}, Size{src1Width}, Size{src1Height},
                     VectorPointers{ppSrc2, src2Shift}, Size{src2Len}, VectorPointers{ppSrc3, src3Shift}, Size{src3Len},
                     VectorPointers{ppDst, dstShift}, Fit{src1Width, src2Len}, Fit{src1Height, src3Len});
}

}  // namespace vorm::products
