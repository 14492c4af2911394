// vormTranspose_m: one matrix, dst(c, r) = src(r, c).
#pragma once

#include "frame/call.hpp"
#include "movement/calls.hpp"
#include "movement/layers.hpp"

// The operands by layout, in the order and with the names of the exported prototypes.
#define TRANSPOSE_M_PARAMS(T) \
    const T *pSrc, int srcStride1, int srcStride2, T *pDst, int dstStride1, int dstStride2, int width, int height
#define TRANSPOSE_M_ARGS pSrc, srcStride1, srcStride2, pDst, dstStride1, dstStride2, width, height
#define TRANSPOSE_M_PARAMS_P(T) \
    const T *const *ppSrc, int srcShift, T *const *ppDst, int dstShift, int width, int height
#define TRANSPOSE_M_ARGS_P ppSrc, srcShift, ppDst, dstShift, width, height

namespace vorm::movement {

template <class T>
VORM_INLINE auto transposeM(TRANSPOSE_M_PARAMS(T))
{
    return callOf<T>(Matrix{pSrc, srcStride1, srcStride2}, Matrix{pDst, dstStride1, dstStride2}, Size{width},
                     Size{height});
}
template <class T>
VORM_INLINE auto transposeMP(TRANSPOSE_M_PARAMS_P(T))
{
    return callOf<T>(MatrixPointers{ppSrc, srcShift, width}, MatrixPointers{ppDst, dstShift, height}, Size{width},
                     Size{height});
}

}  // namespace vorm::movement
