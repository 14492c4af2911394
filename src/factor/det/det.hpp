// vormDet of one matrix (m) and of an array of matrices (ma).
#pragma once

#include "factor/layers.hpp"
#include "frame/call.hpp"

// The operands by layout, in the order and with the names of the exported prototypes.
#define DET_M_PARAMS(T) const T *src, int srcStride1, int srcStride2, int order, T *buffer, T *dst
#define DET_M_ARGS src, srcStride1, srcStride2, order, buffer, dst
#define DET_M_PARAMS_P(T) const T *const *srcPointers, int srcShift, int order, T *buffer, T *dst
#define DET_M_ARGS_P srcPointers, srcShift, order, buffer, dst
#define DET_MA_PARAMS(T) \
    const T *src, int srcStride0, int srcStride1, int srcStride2, int order, T *buffer, T *dst, int count
#define DET_MA_ARGS src, srcStride0, srcStride1, srcStride2, order, buffer, dst, count
#define DET_MA_PARAMS_L(T) \
    const T *const *srcList, int srcShift, int srcStride1, int srcStride2, int order, T *buffer, T *dst, int count
#define DET_MA_ARGS_L srcList, srcShift, srcStride1, srcStride2, order, buffer, dst, count
#define DET_MA_PARAMS_P(T) \
    const T *const *srcPointers, int srcShift, int srcStride0, int order, T *buffer, T *dst, int count
#define DET_MA_ARGS_P srcPointers, srcShift, srcStride0, order, buffer, dst, count

namespace vorm::factor {

// order count: linear in the order, unlike the work.
template <class T>
VORM_INLINE constexpr Work detWork(int order, int count)
{
    return workOf(wrapMul(order, count), byType<T>(100, 200), order, order, order, count);
}
template <class T>
VORM_INLINE constexpr Buffer<T> detBuffer(T* buffer, int order)
{
    return {buffer, wrapMul(order, wrapAdd(order, 1))};
}

template <class T>
VORM_INLINE auto detM(DET_M_PARAMS(T))
{
    return callOf<T>(Matrix{src, srcStride1, srcStride2}, Size{order}, detBuffer(buffer, order), ObjectTable{dst, 1});
}
template <class T>
VORM_INLINE auto detMP(DET_M_PARAMS_P(T))
{
    return callOf<T>(MatrixPointers{srcPointers, srcShift, order}, Size{order}, detBuffer(buffer, order),
                     ObjectTable{dst, 1});
}
template <class T>
VORM_INLINE auto detMa(DET_MA_PARAMS(T))
{
    return arrayCallOf<T>(detWork<T>(order, count), count, MatrixArray{src, srcStride0, srcStride1, srcStride2},
                          Size{order}, detBuffer(buffer, order), ObjectTable{dst, 1});
}
template <class T>
VORM_INLINE auto detMaL(DET_MA_PARAMS_L(T))
{
    return arrayCallOf<T>(detWork<T>(order, count), count, MatrixList{srcList, srcShift, srcStride1, srcStride2},
                          Size{order}, detBuffer(buffer, order), ObjectTable{dst, 1});
}
template <class T>
VORM_INLINE auto detMaP(DET_MA_PARAMS_P(T))
{
    return arrayCallOf<T>(detWork<T>(order, count), count,
                          MatrixArrayPointers{srcPointers, srcShift, srcStride0, order}, Size{order},
                          detBuffer(buffer, order), ObjectTable{dst, 1});
}

}  // namespace vorm::factor
