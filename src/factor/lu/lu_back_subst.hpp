// vormLUBackSubst: one matrix and one vector (mv), one matrix and an array of vectors (mva), an array of
// matrices paired with an array of vectors (mava). The matrix holds the factors and is read only.
#pragma once

#include "factor/layers.hpp"
#include "frame/call.hpp"

// The operands by layout, in the order and with the names of the exported prototypes.
#define LU_MV_PARAMS(T)                                                                                          \
    const T *src, int srcStride1, int srcStride2, const int *pivotIndex, const T *src2, int src2Stride2, T *dst, \
        int dstStride2, int order
#define LU_MV_ARGS src, srcStride1, srcStride2, pivotIndex, src2, src2Stride2, dst, dstStride2, order
#define LU_MV_PARAMS_P(T)                                                                                          \
    const T *const *srcPointers, int srcShift, const int *pivotIndex, const T *const *src2Pointers, int src2Shift, \
        T *const *dstPointers, int dstShift, int order
#define LU_MV_ARGS_P srcPointers, srcShift, pivotIndex, src2Pointers, src2Shift, dstPointers, dstShift, order
#define LU_MVA_PARAMS(T)                                                                                 \
    const T *src, int srcStride1, int srcStride2, const int *pivotIndex, const T *src2, int src2Stride0, \
        int src2Stride2, T *dst, int dstStride0, int dstStride2, int order, int count
#define LU_MVA_ARGS \
    src, srcStride1, srcStride2, pivotIndex, src2, src2Stride0, src2Stride2, dst, dstStride0, dstStride2, order, count
#define LU_MVA_PARAMS_L(T)                                                                                        \
    const T *src, int srcStride1, int srcStride2, const int *pivotIndex, const T *const *src2List, int src2Shift, \
        int src2Stride2, T *const *dstList, int dstShift, int dstStride2, int order, int count
#define LU_MVA_ARGS_L                                                                                                \
    src, srcStride1, srcStride2, pivotIndex, src2List, src2Shift, src2Stride2, dstList, dstShift, dstStride2, order, \
        count
#define LU_MVA_PARAMS_P(T)                                                                                         \
    const T *const *srcPointers, int srcShift, const int *pivotIndex, const T *const *src2Pointers, int src2Shift, \
        int src2Stride0, T *const *dstPointers, int dstShift, int dstStride0, int order, int count
#define LU_MVA_ARGS_P                                                                                                  \
    srcPointers, srcShift, pivotIndex, src2Pointers, src2Shift, src2Stride0, dstPointers, dstShift, dstStride0, order, \
        count
#define LU_MAVA_PARAMS(T)                                                                               \
    const T *src, int srcStride0, int srcStride1, int srcStride2, const int *pivotIndex, const T *src2, \
        int src2Stride0, int src2Stride2, T *dst, int dstStride0, int dstStride2, int order, int count
#define LU_MAVA_ARGS                                                                                                  \
    src, srcStride0, srcStride1, srcStride2, pivotIndex, src2, src2Stride0, src2Stride2, dst, dstStride0, dstStride2, \
        order, count
#define LU_MAVA_PARAMS_L(T)                                                                                        \
    const T *const *srcList, int srcShift, int srcStride1, int srcStride2, const int *pivotIndex,                  \
        const T *const *src2List, int src2Shift, int src2Stride2, T *const *dstList, int dstShift, int dstStride2, \
        int order, int count
#define LU_MAVA_ARGS_L                                                                                          \
    srcList, srcShift, srcStride1, srcStride2, pivotIndex, src2List, src2Shift, src2Stride2, dstList, dstShift, \
        dstStride2, order, count
#define LU_MAVA_PARAMS_P(T)                                                                                         \
    const T *const *srcPointers, int srcShift, int srcStride0, const int *pivotIndex, const T *const *src2Pointers, \
        int src2Shift, int src2Stride0, T *const *dstPointers, int dstShift, int dstStride0, int order, int count
#define LU_MAVA_ARGS_P                                                                                          \
    srcPointers, srcShift, srcStride0, pivotIndex, src2Pointers, src2Shift, src2Stride0, dstPointers, dstShift, \
        dstStride0, order, count

namespace vorm::factor {

// The common matrix of mv and mva has its row numbers once.
constexpr int sameRows = 0;

// (2 count + order) order and (order + 2) order count
constexpr Work luMvaWork(int order, int count, int picoseconds)
{
    return workOf(wrapMul(wrapAdd(wrapMul(2, count), order), order), picoseconds, order, order, count);
}
constexpr Work luMavaWork(int order, int count, int picoseconds)
{
    return workOf(wrapMul(wrapAdd(order, 2), order, count), picoseconds, order, order, count);
}

template <class T>
VORM_INLINE auto luMv(LU_MV_PARAMS(T))
{
    return callOf<T>(Matrix{src, srcStride1, srcStride2}, ObjectTable{pivotIndex, sameRows}, Vector{src2, src2Stride2},
                     Vector{dst, dstStride2}, Size{order});
}
template <class T>
VORM_INLINE auto luMvP(LU_MV_PARAMS_P(T))
{
    return callOf<T>(MatrixPointers{srcPointers, srcShift, order}, ObjectTable{pivotIndex, sameRows},
                     VectorPointers{src2Pointers, src2Shift}, VectorPointers{dstPointers, dstShift}, Size{order});
}

template <class T>
VORM_INLINE auto luMva(LU_MVA_PARAMS(T))
{
    return arrayCallOf<T>(luMvaWork(order, count, byType<T>(93, 142)), count, Matrix{src, srcStride1, srcStride2},
                          ObjectTable{pivotIndex, sameRows}, VectorArray{src2, src2Stride0, src2Stride2},
                          VectorArray{dst, dstStride0, dstStride2}, Size{order});
}
template <class T>
VORM_INLINE auto luMvaL(LU_MVA_PARAMS_L(T))
{
    return arrayCallOf<T>(luMvaWork(order, count, byType<T>(110, 158)), count, Matrix{src, srcStride1, srcStride2},
                          ObjectTable{pivotIndex, sameRows}, VectorList{src2List, src2Shift, src2Stride2},
                          VectorList{dstList, dstShift, dstStride2}, Size{order});
}
template <class T>
VORM_INLINE auto luMvaP(LU_MVA_PARAMS_P(T))
{
    return arrayCallOf<T>(luMvaWork(order, count, byType<T>(60, 120)), count,
                          MatrixPointers{srcPointers, srcShift, order}, ObjectTable{pivotIndex, sameRows},
                          VectorArrayPointers{src2Pointers, src2Shift, src2Stride0},
                          VectorArrayPointers{dstPointers, dstShift, dstStride0}, Size{order});
}

template <class T>
VORM_INLINE auto luMava(LU_MAVA_PARAMS(T))
{
    return arrayCallOf<T>(luMavaWork(order, count, byType<T>(270, 380)), count,
                          MatrixArray{src, srcStride0, srcStride1, srcStride2}, ObjectTable{pivotIndex, order},
                          VectorArray{src2, src2Stride0, src2Stride2}, VectorArray{dst, dstStride0, dstStride2},
                          Size{order});
}
template <class T>
VORM_INLINE auto luMavaL(LU_MAVA_PARAMS_L(T))
{
    return arrayCallOf<T>(luMavaWork(order, count, byType<T>(290, 420)), count,
                          MatrixList{srcList, srcShift, srcStride1, srcStride2}, ObjectTable{pivotIndex, order},
                          VectorList{src2List, src2Shift, src2Stride2}, VectorList{dstList, dstShift, dstStride2},
                          Size{order});
}
template <class T>
VORM_INLINE auto luMavaP(LU_MAVA_PARAMS_P(T))
{
    return arrayCallOf<T>(luMavaWork(order, count, byType<T>(360, 540)), count,
                          MatrixArrayPointers{srcPointers, srcShift, srcStride0, order}, ObjectTable{pivotIndex, order},
                          VectorArrayPointers{src2Pointers, src2Shift, src2Stride0},
                          VectorArrayPointers{dstPointers, dstShift, dstStride0}, Size{order});
}

}  // namespace vorm::factor
