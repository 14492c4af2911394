// vormExtract: a vector, gathered into a dense destination.
#pragma once

#include "movement/extract_calls.hpp"
#include "movement/layers.hpp"

// The operands by layout, in the order and with the names of the exported prototypes.
#define EXTRACT_V_PARAMS(T) const T *pSrc, int srcStride2, T *pDst, int len
#define EXTRACT_V_ARGS pSrc, srcStride2, pDst, len
#define EXTRACT_V_PARAMS_P(T) const T *const *ppSrc, int srcShift, T *pDst, int len
#define EXTRACT_V_ARGS_P ppSrc, srcShift, pDst, len

namespace vorm::movement {

template <class T>
VORM_INLINE auto extractV(EXTRACT_V_PARAMS(T))
{
    return callOf<T, MovementTests>(Vector{pSrc, srcStride2}, Dense{pDst}, Size{len});
}
template <class T>
VORM_INLINE auto extractVP(EXTRACT_V_PARAMS_P(T))
{
    return callOf<T, ExtractOnePTests>(VectorPointers{ppSrc, srcShift}, Dense{pDst}, Size{len});
}

}  // namespace vorm::movement
