// vormLUDecomp of one matrix (m) and of an array of matrices (ma): P A = L U.
#pragma once

#include "factor/layers.hpp"
#include "frame/call.hpp"

// The operands by layout, in the order and with the names of the exported prototypes.
#define LU_DECOMP_M_PARAMS(T) \
    const T *src, int srcStride1, int srcStride2, int *pivotIndex, T *dst, int dstStride1, int dstStride2, int order
#define LU_DECOMP_M_ARGS src, srcStride1, srcStride2, pivotIndex, dst, dstStride1, dstStride2, order
#define LU_DECOMP_M_PARAMS_P(T) \
    const T *const *srcPointers, int srcShift, int *pivotIndex, T *const *dstPointers, int dstShift, int order
#define LU_DECOMP_M_ARGS_P srcPointers, srcShift, pivotIndex, dstPointers, dstShift, order
#define LU_DECOMP_MA_PARAMS(T)                                                                             \
    const T *src, int srcStride0, int srcStride1, int srcStride2, int *pivotIndex, T *dst, int dstStride0, \
        int dstStride1, int dstStride2, int order, int count
#define LU_DECOMP_MA_ARGS \
    src, srcStride0, srcStride1, srcStride2, pivotIndex, dst, dstStride0, dstStride1, dstStride2, order, count
#define LU_DECOMP_MA_PARAMS_L(T)                                                                               \
    const T *const *srcList, int srcShift, int srcStride1, int srcStride2, int *pivotIndex, T *const *dstList, \
        int dstShift, int dstStride1, int dstStride2, int order, int count
#define LU_DECOMP_MA_ARGS_L \
    srcList, srcShift, srcStride1, srcStride2, pivotIndex, dstList, dstShift, dstStride1, dstStride2, order, count
#define LU_DECOMP_MA_PARAMS_P(T)                                                                                     \
    const T *const *srcPointers, int srcShift, int srcStride0, int *pivotIndex, T *const *dstPointers, int dstShift, \
        int dstStride0, int order, int count
#define LU_DECOMP_MA_ARGS_P \
    srcPointers, srcShift, srcStride0, pivotIndex, dstPointers, dstShift, dstStride0, order, count

namespace vorm::factor {

// order order count
constexpr Work luDecompWork(int order, int count, int picoseconds)
{
    return workOf(wrapMul(order, order, count), picoseconds, order, order, count);
}

template <class T>
VORM_INLINE auto luDecompM(LU_DECOMP_M_PARAMS(T))
{
    return callOf<T>(Matrix{src, srcStride1, srcStride2}, ObjectTable{pivotIndex, order},
                     Matrix{dst, dstStride1, dstStride2}, Size{order});
}
template <class T>
VORM_INLINE auto luDecompMP(LU_DECOMP_M_PARAMS_P(T))
{
    return callOf<T>(MatrixPointers{srcPointers, srcShift, order}, ObjectTable{pivotIndex, order},
                     MatrixPointers{dstPointers, dstShift, order}, Size{order});
}
template <class T>
VORM_INLINE auto luDecompMa(LU_DECOMP_MA_PARAMS(T))
{
    return arrayCallOf<T>(luDecompWork(order, count, byType<T>(680, 1100)), count,
                          MatrixArray{src, srcStride0, srcStride1, srcStride2}, ObjectTable{pivotIndex, order},
                          MatrixArray{dst, dstStride0, dstStride1, dstStride2}, Size{order});
}
template <class T>
VORM_INLINE auto luDecompMaL(LU_DECOMP_MA_PARAMS_L(T))
{
    return arrayCallOf<T>(luDecompWork(order, count, byType<T>(710, 1100)), count,
                          MatrixList{srcList, srcShift, srcStride1, srcStride2}, ObjectTable{pivotIndex, order},
                          MatrixList{dstList, dstShift, dstStride1, dstStride2}, Size{order});
}
template <class T>
VORM_INLINE auto luDecompMaP(LU_DECOMP_MA_PARAMS_P(T))
{
    return arrayCallOf<T>(luDecompWork(order, count, byType<T>(620, 1200)), count,
                          MatrixArrayPointers{srcPointers, srcShift, srcStride0, order}, ObjectTable{pivotIndex, order},
                          MatrixArrayPointers{dstPointers, dstShift, dstStride0, order}, Size{order});
}

}  // namespace vorm::factor
