// vormExtract: an array of matrices, as stored or as their transposes, gathered into a dense destination.
#pragma once

#include "movement/extract_calls.hpp"
#include "movement/layers.hpp"

// The operands by layout, in the order and with the names of the exported prototypes.
#define EXTRACT_MA_PARAMS(T) \
    const T *pSrc, int srcStride0, int srcStride1, int srcStride2, T *pDst, int width, int height, int count
#define EXTRACT_MA_ARGS pSrc, srcStride0, srcStride1, srcStride2, pDst, width, height, count
#define EXTRACT_MA_PARAMS_L(T) \
    const T *const *ppSrc, int srcShift, int srcStride1, int srcStride2, T *pDst, int width, int height, int count
#define EXTRACT_MA_ARGS_L ppSrc, srcShift, srcStride1, srcStride2, pDst, width, height, count
#define EXTRACT_MA_PARAMS_P(T) \
    const T *const *ppSrc, int srcShift, int srcStride0, T *pDst, int width, int height, int count
#define EXTRACT_MA_ARGS_P ppSrc, srcShift, srcStride0, pDst, width, height, count

namespace vorm::movement {

// As says how the source is read, and so which of the logical sizes is the width that it is stored with.
template <class As, class T>
VORM_INLINE auto extractMa(EXTRACT_MA_PARAMS(T))
{
    return callOf<T, MovementTests>(As::used(MatrixArray{pSrc, srcStride0, srcStride1, srcStride2}), Dense{pDst},
                                    Size{width}, Size{height}, Count{count});
}
template <class As, class T>
VORM_INLINE auto extractMaL(EXTRACT_MA_PARAMS_L(T))
{
    return callOf<T, MovementTests>(As::used(MatrixList{ppSrc, srcShift, srcStride1, srcStride2}), Dense{pDst},
                                    Size{width}, Size{height}, Count{count});
}
template <class As, class T>
VORM_INLINE auto extractMaP(EXTRACT_MA_PARAMS_P(T))
{
    return callOf<T, MovementTests>(
        As::used(MatrixArrayPointers{ppSrc, srcShift, srcStride0, As::columns(width, height)}), Dense{pDst},
        Size{width}, Size{height}, Count{count});
}

}  // namespace vorm::movement
