// vormEigenValuesSym of one matrix (m) and of an array of matrices (ma).
#pragma once

#include "eigen/sym/order_of_tests.hpp"

// The operands by layout, in the order and with the names of the exported prototypes.
#define VALUES_SYM_M_PARAMS(T) const T *src, int srcStride1, int srcStride2, T *buffer, T *dstValues, int order
#define VALUES_SYM_M_ARGS src, srcStride1, srcStride2, buffer, dstValues, order
#define VALUES_SYM_M_PARAMS_P(T) const T *const *srcPointers, int srcShift, T *buffer, T *dstValues, int order
#define VALUES_SYM_M_ARGS_P srcPointers, srcShift, buffer, dstValues, order
#define VALUES_SYM_MA_PARAMS(T) \
    const T *src, int srcStride0, int srcStride1, int srcStride2, T *buffer, T *dstValues, int order, int count
#define VALUES_SYM_MA_ARGS src, srcStride0, srcStride1, srcStride2, buffer, dstValues, order, count
#define VALUES_SYM_MA_PARAMS_L(T) \
    const T *const *srcList, int srcShift, int srcStride1, int srcStride2, T *buffer, T *dstValues, int order, int count
#define VALUES_SYM_MA_ARGS_L srcList, srcShift, srcStride1, srcStride2, buffer, dstValues, order, count
#define VALUES_SYM_MA_PARAMS_P(T) \
    const T *const *srcPointers, int srcShift, int srcStride0, T *buffer, T *dstValues, int order, int count
#define VALUES_SYM_MA_ARGS_P srcPointers, srcShift, srcStride0, buffer, dstValues, order, count

namespace vorm::eigen::sym {

// (order order + order) count
template <class T>
constexpr Work valuesWork(int order, int count)
{
    const int picoseconds = order <= 2 ? byType<T>(300, 550) : byType<T>(4900, 7500);
    return workOf(wrapMul(wrapAdd(wrapMul(order, order), order), count), picoseconds, order, order, count);
}

template <class T>
VORM_INLINE auto valuesM(VALUES_SYM_M_PARAMS(T))
{
    return callOf<T, SymTests>(Matrix{src, srcStride1, srcStride2}, workSpace(buffer, order),
                               ObjectTable{dstValues, order}, Size{order});
}
template <class T>
VORM_INLINE auto valuesMP(VALUES_SYM_M_PARAMS_P(T))
{
    return callOf<T, SymTests>(MatrixPointers{srcPointers, srcShift, order}, workSpace(buffer, order),
                               ObjectTable{dstValues, order}, Size{order});
}
template <class T>
VORM_INLINE auto valuesMa(VALUES_SYM_MA_PARAMS(T))
{
    return arrayCallOf<T, SymTests>(valuesWork<T>(order, count), count,
                                    MatrixArray{src, srcStride0, srcStride1, srcStride2}, workSpace(buffer, order),
                                    ObjectTable{dstValues, order}, Size{order});
}
template <class T>
VORM_INLINE auto valuesMaL(VALUES_SYM_MA_PARAMS_L(T))
{
    return arrayCallOf<T, SymTests>(valuesWork<T>(order, count), count,
                                    MatrixList{srcList, srcShift, srcStride1, srcStride2}, workSpace(buffer, order),
                                    ObjectTable{dstValues, order}, Size{order});
}
template <class T>
VORM_INLINE auto valuesMaP(VALUES_SYM_MA_PARAMS_P(T))
{
    return arrayCallOf<T, SymTests>(valuesWork<T>(order, count), count,
                                    MatrixArrayPointers{srcPointers, srcShift, srcStride0, order},
                                    workSpace(buffer, order), ObjectTable{dstValues, order}, Size{order});
}

}  // namespace vorm::eigen::sym
