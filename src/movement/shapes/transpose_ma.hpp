// vormTranspose_ma: an array of matrices, dst(c, r) = src(r, c).
#pragma once

#include "frame/call.hpp"
#include "movement/calls.hpp"
#include "movement/layers.hpp"

// The operands by layout, in the order and with the names of the exported prototypes.
#define TRANSPOSE_MA_PARAMS(T)                                                                              \
    const T *pSrc, int srcStride0, int srcStride1, int srcStride2, T *pDst, int dstStride0, int dstStride1, \
        int dstStride2, int width, int height, int count
#define TRANSPOSE_MA_ARGS \
    pSrc, srcStride0, srcStride1, srcStride2, pDst, dstStride0, dstStride1, dstStride2, width, height, count
#define TRANSPOSE_MA_PARAMS_L(T)                                                                        \
    const T *const *ppSrc, int srcShift, int srcStride1, int srcStride2, T *const *ppDst, int dstShift, \
        int dstStride1, int dstStride2, int width, int height, int count
#define TRANSPOSE_MA_ARGS_L \
    ppSrc, srcShift, srcStride1, srcStride2, ppDst, dstShift, dstStride1, dstStride2, width, height, count
#define TRANSPOSE_MA_PARAMS_P(T)                                                                                   \
    const T *const *ppSrc, int srcShift, int srcStride0, T *const *ppDst, int dstShift, int dstStride0, int width, \
        int height, int count
#define TRANSPOSE_MA_ARGS_P ppSrc, srcShift, srcStride0, ppDst, dstShift, dstStride0, width, height, count

namespace vorm::movement {

template <class T>
VORM_INLINE auto transposeMa(TRANSPOSE_MA_PARAMS(T))
{
    return callOf<T>(MatrixArray{pSrc, srcStride0, srcStride1, srcStride2},
                     MatrixArray{pDst, dstStride0, dstStride1, dstStride2}, Size{width}, Size{height}, Count{count});
}
template <class T>
VORM_INLINE auto transposeMaL(TRANSPOSE_MA_PARAMS_L(T))
{
    return callOf<T>(MatrixList{ppSrc, srcShift, srcStride1, srcStride2},
                     MatrixList{ppDst, dstShift, dstStride1, dstStride2}, Size{width}, Size{height}, Count{count});
}
template <class T>
VORM_INLINE auto transposeMaP(TRANSPOSE_MA_PARAMS_P(T))
{
    return callOf<T>(MatrixArrayPointers{ppSrc, srcShift, srcStride0, width},
                     MatrixArrayPointers{ppDst, dstShift, dstStride0, height}, Size{width}, Size{height}, Count{count});
}

}  // namespace vorm::movement
