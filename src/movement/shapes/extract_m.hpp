// vormExtract: a matrix, as stored or as its transpose, gathered into a dense destination.
#pragma once

#include "movement/extract_calls.hpp"
#include "movement/layers.hpp"

// The operands by layout, in the order and with the names of the exported prototypes.
#define EXTRACT_M_PARAMS(T) const T *pSrc, int srcStride1, int srcStride2, T *pDst, int width, int height
#define EXTRACT_M_ARGS pSrc, srcStride1, srcStride2, pDst, width, height
#define EXTRACT_M_PARAMS_P(T) const T *const *ppSrc, int srcShift, T *pDst, int width, int height
#define EXTRACT_M_ARGS_P ppSrc, srcShift, pDst, width, height

namespace vorm::movement {

// As says how the source is read, and so which of the logical sizes is the width that it is stored with.
template <class As, class T>
VORM_INLINE auto extractM(EXTRACT_M_PARAMS(T))
{
    return callOf<T, MovementTests>(As::used(Matrix{pSrc, srcStride1, srcStride2}), Dense{pDst}, Size{width},
                                    Size{height});
}
template <class As, class T>
VORM_INLINE auto extractMP(EXTRACT_M_PARAMS_P(T))
{
    return callOf<T, ExtractOnePTests>(As::used(MatrixPointers{ppSrc, srcShift, As::columns(width, height)}),
                                       Dense{pDst}, Size{width}, Size{height});
}

}  // namespace vorm::movement
