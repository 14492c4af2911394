// vormCholeskyDecomp of one matrix (m) and of an array of matrices (ma): A = L L'.
#pragma once

#include "factor/layers.hpp"
#include "frame/call.hpp"

// The operands by layout, in the order and with the names of the exported prototypes.
#define CHOLESKY_M_PARAMS(T) \
    const T *src, int srcStride1, int srcStride2, T *dst, int dstStride1, int dstStride2, int order
#define CHOLESKY_M_ARGS src, srcStride1, srcStride2, dst, dstStride1, dstStride2, order
#define CHOLESKY_M_PARAMS_P(T) const T *const *srcPointers, int srcShift, T *const *dstPointers, int dstShift, int order
#define CHOLESKY_M_ARGS_P srcPointers, srcShift, dstPointers, dstShift, order
#define CHOLESKY_MA_PARAMS(T)                                                                             \
    const T *src, int srcStride0, int srcStride1, int srcStride2, T *dst, int dstStride0, int dstStride1, \
        int dstStride2, int order, int count
#define CHOLESKY_MA_ARGS src, srcStride0, srcStride1, srcStride2, dst, dstStride0, dstStride1, dstStride2, order, count
#define CHOLESKY_MA_PARAMS_L(T)                                                                             \
    const T *const *srcList, int srcShift, int srcStride1, int srcStride2, T *const *dstList, int dstShift, \
        int dstStride1, int dstStride2, int order, int count
#define CHOLESKY_MA_ARGS_L \
    srcList, srcShift, srcStride1, srcStride2, dstList, dstShift, dstStride1, dstStride2, order, count
#define CHOLESKY_MA_PARAMS_P(T)                                                                                     \
    const T *const *srcPointers, int srcShift, int srcStride0, T *const *dstPointers, int dstShift, int dstStride0, \
        int order, int count
#define CHOLESKY_MA_ARGS_P srcPointers, srcShift, srcStride0, dstPointers, dstShift, dstStride0, order, count

namespace vorm::factor {

// order order count
constexpr Work choleskyDecompWork(int order, int count, int picoseconds)
{
    return workOf(wrapMul(order, order, count), picoseconds, order, order, count);
}

template <class T>
VORM_INLINE auto choleskyM(CHOLESKY_M_PARAMS(T))
{
    return callOf<T>(Matrix{src, srcStride1, srcStride2}, Matrix{dst, dstStride1, dstStride2}, Size{order});
}
template <class T>
VORM_INLINE auto choleskyMP(CHOLESKY_M_PARAMS_P(T))
{
    return callOf<T>(MatrixPointers{srcPointers, srcShift, order}, MatrixPointers{dstPointers, dstShift, order},
                     Size{order});
}
template <class T>
VORM_INLINE auto choleskyMa(CHOLESKY_MA_PARAMS(T))
{
    return arrayCallOf<T>(choleskyDecompWork(order, count, byType<T>(240, 490)), count,
                          MatrixArray{src, srcStride0, srcStride1, srcStride2},
                          MatrixArray{dst, dstStride0, dstStride1, dstStride2}, Size{order});
}
template <class T>
VORM_INLINE auto choleskyMaL(CHOLESKY_MA_PARAMS_L(T))
{
    return arrayCallOf<T>(choleskyDecompWork(order, count, byType<T>(280, 520)), count,
                          MatrixList{srcList, srcShift, srcStride1, srcStride2},
                          MatrixList{dstList, dstShift, dstStride1, dstStride2}, Size{order});
}
template <class T>
VORM_INLINE auto choleskyMaP(CHOLESKY_MA_PARAMS_P(T))
{
    return arrayCallOf<T>(choleskyDecompWork(order, count, byType<T>(150, 390)), count,
                          MatrixArrayPointers{srcPointers, srcShift, srcStride0, order},
                          MatrixArrayPointers{dstPointers, dstShift, dstStride0, order}, Size{order});
}

}  // namespace vorm::factor
