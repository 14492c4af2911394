// vormExtract: an array of vectors, gathered into a dense destination.
#pragma once

#include "movement/extract_calls.hpp"
#include "movement/layers.hpp"

// The operands by layout, in the order and with the names of the exported prototypes.
#define EXTRACT_VA_PARAMS(T) const T *pSrc, int srcStride0, int srcStride2, T *pDst, int len, int count
#define EXTRACT_VA_ARGS pSrc, srcStride0, srcStride2, pDst, len, count
#define EXTRACT_VA_PARAMS_L(T) const T *const *ppSrc, int srcShift, int srcStride2, T *pDst, int len, int count
#define EXTRACT_VA_ARGS_L ppSrc, srcShift, srcStride2, pDst, len, count
#define EXTRACT_VA_PARAMS_P(T) const T *const *ppSrc, int srcShift, int srcStride0, T *pDst, int len, int count
#define EXTRACT_VA_ARGS_P ppSrc, srcShift, srcStride0, pDst, len, count

namespace vorm::movement {

template <class T>
VORM_INLINE auto extractVa(EXTRACT_VA_PARAMS(T))
{
    return callOf<T, MovementTests>(VectorArray{pSrc, srcStride0, srcStride2}, Dense{pDst}, Size{len}, Count{count});
}
template <class T>
VORM_INLINE auto extractVaL(EXTRACT_VA_PARAMS_L(T))
{
    return callOf<T, MovementTests>(VectorList{ppSrc, srcShift, srcStride2}, Dense{pDst}, Size{len}, Count{count});
}
template <class T>
VORM_INLINE auto extractVaP(EXTRACT_VA_PARAMS_P(T))
{
    return callOf<T, MovementTests>(VectorArrayPointers{ppSrc, srcShift, srcStride0}, Dense{pDst}, Size{len},
                                    Count{count});
}

}  // namespace vorm::movement
