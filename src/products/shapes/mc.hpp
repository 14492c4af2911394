// The mc shape: one matrix and one constant, dst = src val; read transposed it is the tc shape.
#pragma once

#include "frame/call.hpp"
#include "products/layers.hpp"

// The operands by layout, in the order and with the names of the exported prototypes.
#define MC_PARAMS(T) \
    const T *pSrc, int srcStride1, int srcStride2, T val, T *pDst, int dstStride1, int dstStride2, int width, int height
#define MC_ARGS pSrc, srcStride1, srcStride2, val, pDst, dstStride1, dstStride2, width, height
#define MC_PARAMS_P(T) const T *const *ppSrc, int srcShift, T val, T *const *ppDst, int dstShift, int width, int height
#define MC_ARGS_P ppSrc, srcShift, val, ppDst, dstShift, width, height

namespace vorm::products {

template <class As, class T>
VORM_INLINE auto mc(MC_PARAMS(T))
{
    return callOf<T>(As::used(Matrix{pSrc, srcStride1, srcStride2}), Constant{val},
                     Matrix{pDst, dstStride1, dstStride2}, Size{width}, Size{height});
}
template <class As, class T>
VORM_INLINE auto mcP(MC_PARAMS_P(T))
{
    return callOf<T>(As::used(MatrixPointers{ppSrc, srcShift, As::columns(width, height)}), Constant{val},
                     MatrixPointers{ppDst, dstShift, width}, Size{width}, Size{height});
}

}  // namespace vorm::products
