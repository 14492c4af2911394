// vormLoadIdentity_ma: identities, of any shape, to an array of matrices.
#pragma once

#include "movement/calls.hpp"
#include "movement/layers.hpp"

// The operands by layout, in the order and with the names of the exported prototypes.
#define LOAD_IDENTITY_MA_PARAMS(T) \
    T *pDst, int dstStride0, int dstStride1, int dstStride2, int width, int height, int count
#define LOAD_IDENTITY_MA_ARGS pDst, dstStride0, dstStride1, dstStride2, width, height, count
#define LOAD_IDENTITY_MA_PARAMS_L(T) \
    T *const *ppDst, int dstShift, int dstStride1, int dstStride2, int width, int height, int count
#define LOAD_IDENTITY_MA_ARGS_L ppDst, dstShift, dstStride1, dstStride2, width, height, count
#define LOAD_IDENTITY_MA_PARAMS_P(T) T *const *ppDst, int dstShift, int dstStride0, int width, int height, int count
#define LOAD_IDENTITY_MA_ARGS_P ppDst, dstShift, dstStride0, width, height, count

namespace vorm::movement {

template <class T>
VORM_INLINE auto loadIdentityMa(LOAD_IDENTITY_MA_PARAMS(T))
{
    return callOf<T, MovementTests>(MatrixArray{pDst, stride0Of<T>(dstStride0, count), dstStride1, dstStride2},
                                    Size{width}, Size{height}, Count{count});
}
template <class T>
VORM_INLINE auto loadIdentityMaL(LOAD_IDENTITY_MA_PARAMS_L(T))
{
    return callOf<T, MovementTests>(MatrixList{ppDst, dstShift, dstStride1, dstStride2}, Size{width}, Size{height},
                                    Count{count});
}
template <class T>
VORM_INLINE auto loadIdentityMaP(LOAD_IDENTITY_MA_PARAMS_P(T))
{
    return callOf<T, MovementTests>(MatrixArrayPointers{ppDst, dstShift, stride0Of<T>(dstStride0, count), width},
                                    Size{width}, Size{height}, Count{count});
}

}  // namespace vorm::movement
