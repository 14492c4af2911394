// The mac shape: an array of matrices and one constant, dst[n] = src[n] val; read transposed it is the tac shape.
#pragma once

#include "frame/call.hpp"
#include "products/layers.hpp"

// The operands by layout, in the order and with the names of the exported prototypes.
#define MAC_PARAMS(T)                                                                                              \
    const T *pSrc, int srcStride0, int srcStride1, int srcStride2, T val, T *pDst, int dstStride0, int dstStride1, \
        int dstStride2, int width, int height, int count
#define MAC_ARGS \
    pSrc, srcStride0, srcStride1, srcStride2, val, pDst, dstStride0, dstStride1, dstStride2, width, height, count
#define MAC_PARAMS_L(T)                                                                                        \
    const T *const *ppSrc, int srcShift, int srcStride1, int srcStride2, T val, T *const *ppDst, int dstShift, \
        int dstStride1, int dstStride2, int width, int height, int count
#define MAC_ARGS_L \
    ppSrc, srcShift, srcStride1, srcStride2, val, ppDst, dstShift, dstStride1, dstStride2, width, height, count
#define MAC_PARAMS_P(T)                                                                                        \
    const T *const *ppSrc, int srcShift, int srcStride0, T val, T *const *ppDst, int dstShift, int dstStride0, \
        int width, int height, int count
#define MAC_ARGS_P ppSrc, srcShift, srcStride0, val, ppDst, dstShift, dstStride0, width, height, count

namespace vorm::products {

constexpr Work macWork(int width, int height, int count, int picoseconds)
{
    return workOf(wrapMul(2, width, height, count), picoseconds, width, height, count);
}

template <class As, class T>
VORM_INLINE auto mac(MAC_PARAMS(T))
{
    return arrayCallOf<T>(macWork(width, height, count, byType<T>(190, 450)), count,
                          As::used(MatrixArray{pSrc, srcStride0, srcStride1, srcStride2}), Constant{val},
                          MatrixArray{pDst, dstStride0, dstStride1, dstStride2}, Size{width}, Size{height});
}
template <class As, class T>
VORM_INLINE auto macL(MAC_PARAMS_L(T))
{
    return arrayCallOf<T>(macWork(width, height, count, byType<T>(210, 500)), count,
                          As::used(MatrixList{ppSrc, srcShift, srcStride1, srcStride2}), Constant{val},
                          MatrixList{ppDst, dstShift, dstStride1, dstStride2}, Size{width}, Size{height});
}
template <class As, class T>
VORM_INLINE auto macP(MAC_PARAMS_P(T))
{
    return arrayCallOf<T>(macWork(width, height, count, byType<T>(190, 450)), count,
                          As::used(MatrixArrayPointers{ppSrc, srcShift, srcStride0, As::columns(width, height)}),
                          Constant{val}, MatrixArrayPointers{ppDst, dstShift, dstStride0, width}, Size{width},
                          Size{height});
}

}  // namespace vorm::products
