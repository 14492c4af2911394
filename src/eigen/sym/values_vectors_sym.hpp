// vormEigenValuesVectorsSym of one matrix (m) and of an array of matrices (ma).
#pragma once

#include "eigen/sym/order_of_tests.hpp"

// The operands by layout, in the order and with the names of the exported prototypes.
#define VECTORS_SYM_M_PARAMS(T)                                                                             \
    const T *src, int srcStride1, int srcStride2, T *buffer, T *dstVectors, int dstStride1, int dstStride2, \
        T *dstValues, int order
#define VECTORS_SYM_M_ARGS src, srcStride1, srcStride2, buffer, dstVectors, dstStride1, dstStride2, dstValues, order
#define VECTORS_SYM_M_PARAMS_P(T)                                                                                  \
    const T *const *srcPointers, int srcShift, T *buffer, T *const *dstVectorPointers, int dstShift, T *dstValues, \
        int order
#define VECTORS_SYM_M_ARGS_P srcPointers, srcShift, buffer, dstVectorPointers, dstShift, dstValues, order
#define VECTORS_SYM_MA_PARAMS(T)                                                                            \
    const T *src, int srcStride0, int srcStride1, int srcStride2, T *buffer, T *dstVectors, int dstStride0, \
        int dstStride1, int dstStride2, T *dstValues, int order, int count
#define VECTORS_SYM_MA_ARGS                                                                                            \
    src, srcStride0, srcStride1, srcStride2, buffer, dstVectors, dstStride0, dstStride1, dstStride2, dstValues, order, \
        count
#define VECTORS_SYM_MA_PARAMS_L(T)                                                                             \
    const T *const *srcList, int srcShift, int srcStride1, int srcStride2, T *buffer, T *const *dstVectorList, \
        int dstShift, int dstStride1, int dstStride2, T *dstValues, int order, int count
#define VECTORS_SYM_MA_ARGS_L                                                                                      \
    srcList, srcShift, srcStride1, srcStride2, buffer, dstVectorList, dstShift, dstStride1, dstStride2, dstValues, \
        order, count
#define VECTORS_SYM_MA_PARAMS_P(T)                                                                                   \
    const T *const *srcPointers, int srcShift, int srcStride0, T *buffer, T *const *dstVectorPointers, int dstShift, \
        int dstStride0, T *dstValues, int order, int count
#define VECTORS_SYM_MA_ARGS_P \
    srcPointers, srcShift, srcStride0, buffer, dstVectorPointers, dstShift, dstStride0, dstValues, order, count

namespace vorm::eigen::sym {

// (2 order order + order) count
template <class T>
constexpr Work vectorsWork(int order, int count)
{
    const int measure = wrapMul(wrapAdd(wrapMul(2, order, order), order), count);
    if (order <= 2) return workOf(measure, byType<T>(750, 1500), order, order, count);
    return workOf(measure, byType<T>(830, 1400), order, order, order + 4.0, count);
}

template <class T>
VORM_INLINE auto vectorsM(VECTORS_SYM_M_PARAMS(T))
{
    return callOf<T, SymTests>(Matrix{src, srcStride1, srcStride2}, workSpace(buffer, order),
                               Matrix{dstVectors, dstStride1, dstStride2}, ObjectTable{dstValues, order}, Size{order});
}
template <class T>
VORM_INLINE auto vectorsMP(VECTORS_SYM_M_PARAMS_P(T))
{
    return callOf<T, SymTests>(MatrixPointers{srcPointers, srcShift, order}, workSpace(buffer, order),
                               MatrixPointers{dstVectorPointers, dstShift, order}, ObjectTable{dstValues, order},
                               Size{order});
}
template <class T>
VORM_INLINE auto vectorsMa(VECTORS_SYM_MA_PARAMS(T))
{
    return arrayCallOf<T, SymTests>(vectorsWork<T>(order, count), count,
                                    MatrixArray{src, srcStride0, srcStride1, srcStride2}, workSpace(buffer, order),
                                    MatrixArray{dstVectors, dstStride0, dstStride1, dstStride2},
                                    ObjectTable{dstValues, order}, Size{order});
}
template <class T>
VORM_INLINE auto vectorsMaL(VECTORS_SYM_MA_PARAMS_L(T))
{
    return arrayCallOf<T, SymTests>(vectorsWork<T>(order, count), count,
                                    MatrixList{srcList, srcShift, srcStride1, srcStride2}, workSpace(buffer, order),
                                    MatrixList{dstVectorList, dstShift, dstStride1, dstStride2},
                                    ObjectTable{dstValues, order}, Size{order});
}
template <class T>
VORM_INLINE auto vectorsMaP(VECTORS_SYM_MA_PARAMS_P(T))
{
    return arrayCallOf<T, SymTests>(
        vectorsWork<T>(order, count), count, MatrixArrayPointers{srcPointers, srcShift, srcStride0, order},
        workSpace(buffer, order), MatrixArrayPointers{dstVectorPointers, dstShift, dstStride0, order},
        ObjectTable{dstValues, order}, Size{order});
}

}  // namespace vorm::eigen::sym
