// vormInvert of one matrix (m) and of an array of matrices (ma).
#pragma once

#include "factor/layers.hpp"
#include "frame/call.hpp"

// The operands by layout, in the order and with the names of the exported prototypes.
#define INVERT_M_PARAMS(T) \
    const T *src, int srcStride1, int srcStride2, T *buffer, T *dst, int dstStride1, int dstStride2, int order
#define INVERT_M_ARGS src, srcStride1, srcStride2, buffer, dst, dstStride1, dstStride2, order
#define INVERT_M_PARAMS_P(T) \
    const T *const *srcPointers, int srcShift, T *buffer, T *const *dstPointers, int dstShift, int order
#define INVERT_M_ARGS_P srcPointers, srcShift, buffer, dstPointers, dstShift, order
#define INVERT_MA_PARAMS(T)                                                                                          \
    const T *src, int srcStride0, int srcStride1, int srcStride2, T *buffer, T *dst, int dstStride0, int dstStride1, \
        int dstStride2, int order, int count
#define INVERT_MA_ARGS \
    src, srcStride0, srcStride1, srcStride2, buffer, dst, dstStride0, dstStride1, dstStride2, order, count
#define INVERT_MA_PARAMS_L(T)                                                                                          \
    const T *const *srcList, int srcShift, int srcStride1, int srcStride2, T *buffer, T *const *dstList, int dstShift, \
        int dstStride1, int dstStride2, int order, int count
#define INVERT_MA_ARGS_L \
    srcList, srcShift, srcStride1, srcStride2, buffer, dstList, dstShift, dstStride1, dstStride2, order, count
#define INVERT_MA_PARAMS_P(T)                                                                                  \
    const T *const *srcPointers, int srcShift, int srcStride0, T *buffer, T *const *dstPointers, int dstShift, \
        int dstStride0, int order, int count
#define INVERT_MA_ARGS_P srcPointers, srcShift, srcStride0, buffer, dstPointers, dstShift, dstStride0, order, count

namespace vorm::factor {

// 2 order count, which says nothing of the work: that rises with the fifth power of the order.
template <class T>
VORM_INLINE constexpr Work invertWork(int order, int count)
{
    return workOf(wrapMul(2, order, count), byType<T>(20, 40), order, order, order, order, order, count);
}
template <class T>
VORM_INLINE constexpr Buffer<T> invertBuffer(T* buffer, int order)
{
    return {buffer, wrapMul(order, wrapAdd(order, 1))};
}

template <class T>
VORM_INLINE auto invertM(INVERT_M_PARAMS(T))
{
    return callOf<T>(Matrix{src, srcStride1, srcStride2}, invertBuffer(buffer, order),
                     Matrix{dst, dstStride1, dstStride2}, Size{order});
}
template <class T>
VORM_INLINE auto invertMP(INVERT_M_PARAMS_P(T))
{
    return callOf<T>(MatrixPointers{srcPointers, srcShift, order}, invertBuffer(buffer, order),
                     MatrixPointers{dstPointers, dstShift, order}, Size{order});
}
template <class T>
VORM_INLINE auto invertMa(INVERT_MA_PARAMS(T))
{
    return arrayCallOf<T>(invertWork<T>(order, count), count, MatrixArray{src, srcStride0, srcStride1, srcStride2},
                          invertBuffer(buffer, order), MatrixArray{dst, dstStride0, dstStride1, dstStride2},
                          Size{order});
}
template <class T>
VORM_INLINE auto invertMaL(INVERT_MA_PARAMS_L(T))
{
    return arrayCallOf<T>(invertWork<T>(order, count), count, MatrixList{srcList, srcShift, srcStride1, srcStride2},
                          invertBuffer(buffer, order), MatrixList{dstList, dstShift, dstStride1, dstStride2},
                          Size{order});
}
template <class T>
VORM_INLINE auto invertMaP(INVERT_MA_PARAMS_P(T))
{
    return arrayCallOf<T>(invertWork<T>(order, count), count,
                          MatrixArrayPointers{srcPointers, srcShift, srcStride0, order}, invertBuffer(buffer, order),
                          MatrixArrayPointers{dstPointers, dstShift, dstStride0, order}, Size{order});
}

}  // namespace vorm::factor
