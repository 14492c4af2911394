// vormCholeskyBackSubst: one matrix and one vector (mv), one matrix and an array of vectors (mva), an array of
// matrices paired with an array of vectors (mava). The matrix holds the factor and is read only.
#pragma once

#include "factor/layers.hpp"
#include "frame/call.hpp"

// The operands by layout, in the order and with the names of the exported prototypes.
#define CHOLESKY_MV_PARAMS(T) \
    const T *src, int srcStride1, int srcStride2, const T *src2, int src2Stride2, T *dst, int dstStride2, int order
#define CHOLESKY_MV_ARGS src, srcStride1, srcStride2, src2, src2Stride2, dst, dstStride2, order
#define CHOLESKY_MV_PARAMS_P(T)                                                                                    \
    const T *const *srcPointers, int srcShift, const T *const *src2Pointers, int src2Shift, T *const *dstPointers, \
        int dstShift, int order
#define CHOLESKY_MV_ARGS_P srcPointers, srcShift, src2Pointers, src2Shift, dstPointers, dstShift, order
#define CHOLESKY_MVA_PARAMS(T)                                                                             \
    const T *src, int srcStride1, int srcStride2, const T *src2, int src2Stride0, int src2Stride2, T *dst, \
        int dstStride0, int dstStride2, int order, int count
#define CHOLESKY_MVA_ARGS \
    src, srcStride1, srcStride2, src2, src2Stride0, src2Stride2, dst, dstStride0, dstStride2, order, count
#define CHOLESKY_MVA_PARAMS_L(T)                                                                            \
    const T *src, int srcStride1, int srcStride2, const T *const *src2List, int src2Shift, int src2Stride2, \
        T *const *dstList, int dstShift, int dstStride2, int order, int count
#define CHOLESKY_MVA_ARGS_L \
    src, srcStride1, srcStride2, src2List, src2Shift, src2Stride2, dstList, dstShift, dstStride2, order, count
#define CHOLESKY_MVA_PARAMS_P(T)                                                                             \
    const T *const *srcPointers, int srcShift, const T *const *src2Pointers, int src2Shift, int src2Stride0, \
        T *const *dstPointers, int dstShift, int dstStride0, int order, int count
#define CHOLESKY_MVA_ARGS_P \
    srcPointers, srcShift, src2Pointers, src2Shift, src2Stride0, dstPointers, dstShift, dstStride0, order, count
#define CHOLESKY_MAVA_PARAMS(T)                                                                                    \
    const T *src, int srcStride0, int srcStride1, int srcStride2, const T *src2, int src2Stride0, int src2Stride2, \
        T *dst, int dstStride0, int dstStride2, int order, int count
#define CHOLESKY_MAVA_ARGS \
    src, srcStride0, srcStride1, srcStride2, src2, src2Stride0, src2Stride2, dst, dstStride0, dstStride2, order, count
#define CHOLESKY_MAVA_PARAMS_L(T)                                                                                   \
    const T *const *srcList, int srcShift, int srcStride1, int srcStride2, const T *const *src2List, int src2Shift, \
        int src2Stride2, T *const *dstList, int dstShift, int dstStride2, int order, int count
#define CHOLESKY_MAVA_ARGS_L                                                                                           \
    srcList, srcShift, srcStride1, srcStride2, src2List, src2Shift, src2Stride2, dstList, dstShift, dstStride2, order, \
        count
#define CHOLESKY_MAVA_PARAMS_P(T)                                                                           \
    const T *const *srcPointers, int srcShift, int srcStride0, const T *const *src2Pointers, int src2Shift, \
        int src2Stride0, T *const *dstPointers, int dstShift, int dstStride0, int order, int count
#define CHOLESKY_MAVA_ARGS_P                                                                                           \
    srcPointers, srcShift, srcStride0, src2Pointers, src2Shift, src2Stride0, dstPointers, dstShift, dstStride0, order, \
        count

namespace vorm::factor {

// (2 count + order) order and (order + 2) order count
constexpr Work choleskyMvaWork(int order, int count, int picoseconds)
{
    return workOf(wrapMul(wrapAdd(wrapMul(2, count), order), order), picoseconds, order, order, count);
}
constexpr Work choleskyMavaWork(int order, int count, int picoseconds)
{
    return workOf(wrapMul(wrapAdd(order, 2), order, count), picoseconds, order, order, count);
}

template <class T>
VORM_INLINE auto choleskyMv(CHOLESKY_MV_PARAMS(T))
{
    return callOf<T>(Matrix{src, srcStride1, srcStride2}, Vector{src2, src2Stride2}, Vector{dst, dstStride2},
                     Size{order});
}
template <class T>
VORM_INLINE auto choleskyMvP(CHOLESKY_MV_PARAMS_P(T))
{
    return callOf<T>(MatrixPointers{srcPointers, srcShift, order}, VectorPointers{src2Pointers, src2Shift},
                     VectorPointers{dstPointers, dstShift}, Size{order});
}

template <class T>
VORM_INLINE auto choleskyMva(CHOLESKY_MVA_PARAMS(T))
{
    return arrayCallOf<T>(choleskyMvaWork(order, count, byType<T>(95, 135)), count, Matrix{src, srcStride1, srcStride2},
                          VectorArray{src2, src2Stride0, src2Stride2}, VectorArray{dst, dstStride0, dstStride2},
                          Size{order});
}
// Unlike all others these test order and count last.
using CholeskyMvaLTests = Tests<Test::null, Test::stride, Test::shift, Test::size, Test::count>;
template <class T>
VORM_INLINE auto choleskyMvaL(CHOLESKY_MVA_PARAMS_L(T))
{
    return arrayCallOf<T, CholeskyMvaLTests>(
        choleskyMvaWork(order, count, byType<T>(115, 165)), count, Matrix{src, srcStride1, srcStride2},
        VectorList{src2List, src2Shift, src2Stride2}, VectorList{dstList, dstShift, dstStride2}, Size{order});
}
template <class T>
VORM_INLINE auto choleskyMvaP(CHOLESKY_MVA_PARAMS_P(T))
{
    return arrayCallOf<T>(choleskyMvaWork(order, count, byType<T>(60, 115)), count,
                          MatrixPointers{srcPointers, srcShift, order},
                          VectorArrayPointers{src2Pointers, src2Shift, src2Stride0},
                          VectorArrayPointers{dstPointers, dstShift, dstStride0}, Size{order});
}

template <class T>
VORM_INLINE auto choleskyMava(CHOLESKY_MAVA_PARAMS(T))
{
    return arrayCallOf<T>(choleskyMavaWork(order, count, byType<T>(175, 210)), count,
                          MatrixArray{src, srcStride0, srcStride1, srcStride2},
                          VectorArray{src2, src2Stride0, src2Stride2}, VectorArray{dst, dstStride0, dstStride2},
                          Size{order});
}
template <class T>
VORM_INLINE auto choleskyMavaL(CHOLESKY_MAVA_PARAMS_L(T))
{
    return arrayCallOf<T>(choleskyMavaWork(order, count, byType<T>(195, 265)), count,
                          MatrixList{srcList, srcShift, srcStride1, srcStride2},
                          VectorList{src2List, src2Shift, src2Stride2}, VectorList{dstList, dstShift, dstStride2},
                          Size{order});
}
template <class T>
VORM_INLINE auto choleskyMavaP(CHOLESKY_MAVA_PARAMS_P(T))
{
    return arrayCallOf<T>(choleskyMavaWork(order, count, byType<T>(90, 165)), count,
                          MatrixArrayPointers{srcPointers, srcShift, srcStride0, order},
                          VectorArrayPointers{src2Pointers, src2Shift, src2Stride0},
                          VectorArrayPointers{dstPointers, dstShift, dstStride0}, Size{order});
}

}  // namespace vorm::factor
