// vormEigenValues of one matrix (m) and of an array of matrices (ma), and the sizes of the buffers that the functions
// for general matrices take.
#pragma once

#include "eigen/layers.hpp"
#include "frame/call.hpp"

// The operands by layout, in the order and with the names of the exported prototypes.
#define EIGEN_VALUES_M_PARAMS(T) \
    const T *src, int srcStride1, int srcStride2, T *dstValuesRe, T *dstValuesIm, int order, T *buffer
#define EIGEN_VALUES_M_ARGS src, srcStride1, srcStride2, dstValuesRe, dstValuesIm, order, buffer
#define EIGEN_VALUES_M_PARAMS_P(T) \
    const T *const *srcPointers, int srcShift, T *dstValuesRe, T *dstValuesIm, int order, T *buffer
#define EIGEN_VALUES_M_ARGS_P srcPointers, srcShift, dstValuesRe, dstValuesIm, order, buffer
#define EIGEN_VALUES_MA_PARAMS(T)                                                                            \
    const T *src, int srcStride0, int srcStride1, int srcStride2, T *dstValuesRe, T *dstValuesIm, int order, \
        int count, T *buffer
#define EIGEN_VALUES_MA_ARGS src, srcStride0, srcStride1, srcStride2, dstValuesRe, dstValuesIm, order, count, buffer
#define EIGEN_VALUES_MA_PARAMS_L(T)                                                                                   \
    const T *const *srcList, int srcShift, int srcStride1, int srcStride2, T *dstValuesRe, T *dstValuesIm, int order, \
        int count, T *buffer
#define EIGEN_VALUES_MA_ARGS_L srcList, srcShift, srcStride1, srcStride2, dstValuesRe, dstValuesIm, order, count, buffer
#define EIGEN_VALUES_MA_PARAMS_P(T)                                                                                  \
    const T *const *srcPointers, int srcShift, int srcStride0, T *dstValuesRe, T *dstValuesIm, int order, int count, \
        T *buffer
#define EIGEN_VALUES_MA_ARGS_P srcPointers, srcShift, srcStride0, dstValuesRe, dstValuesIm, order, count, buffer

namespace vorm::eigen {

using EigenValuesTests = Tests<Test::null, Test::size, Test::count, Test::shift, Test::stride>;

// (order order + order) count. The time grows with the square of the order, as more elements keep registers busier;
// order 2 needs no sweeps.
template <class T>
constexpr Work eigenValuesWork(int order, int count)
{
    const int picoseconds = order <= 2 ? byType<T>(2300, 3500) : byType<T>(14000, 30000);
    return workOf(wrapMul(wrapAdd(wrapMul(order, order), order), count), picoseconds, order, order, count);
}
// order (order + 5) elements
template <class T>
VORM_INLINE constexpr WorkSpace<T> eigenValuesBuffer(T* buffer, int order)
{
    const auto n = static_cast<std::size_t>(order);
    return {buffer, n * (n + 5)};
}

template <class T>
VORM_INLINE auto eigenValuesM(EIGEN_VALUES_M_PARAMS(T))
{
    return callOf<T, EigenValuesTests>(Matrix{src, srcStride1, srcStride2}, ObjectTable{dstValuesRe, order},
                                       ObjectTable{dstValuesIm, order}, Size{order}, eigenValuesBuffer(buffer, order));
}
template <class T>
VORM_INLINE auto eigenValuesMP(EIGEN_VALUES_M_PARAMS_P(T))
{
    return callOf<T, EigenValuesTests>(MatrixPointers{srcPointers, srcShift, order}, ObjectTable{dstValuesRe, order},
                                       ObjectTable{dstValuesIm, order}, Size{order}, eigenValuesBuffer(buffer, order));
}
template <class T>
VORM_INLINE auto eigenValuesMa(EIGEN_VALUES_MA_PARAMS(T))
{
    return arrayCallOf<T, EigenValuesTests>(eigenValuesWork<T>(order, count),
                                            MatrixArray{src, srcStride0, srcStride1, srcStride2},
                                            ObjectTable{dstValuesRe, order}, ObjectTable{dstValuesIm, order},
                                            Size{order}, Count{count}, eigenValuesBuffer(buffer, order));
}
template <class T>
VORM_INLINE auto eigenValuesMaL(EIGEN_VALUES_MA_PARAMS_L(T))
{
    return arrayCallOf<T, EigenValuesTests>(eigenValuesWork<T>(order, count),
                                            MatrixList{srcList, srcShift, srcStride1, srcStride2},
                                            ObjectTable{dstValuesRe, order}, ObjectTable{dstValuesIm, order},
                                            Size{order}, Count{count}, eigenValuesBuffer(buffer, order));
}
template <class T>
VORM_INLINE auto eigenValuesMaP(EIGEN_VALUES_MA_PARAMS_P(T))
{
    return arrayCallOf<T, EigenValuesTests>(eigenValuesWork<T>(order, count),
                                            MatrixArrayPointers{srcPointers, srcShift, srcStride0, order},
                                            ObjectTable{dstValuesRe, order}, ObjectTable{dstValuesIm, order},
                                            Size{order}, Count{count}, eigenValuesBuffer(buffer, order));
}

// order (squares order + 5) elements in bytes, in 32 bits.
template <class T>
VORM_INLINE VormStatus bufferSize(int order, int* bufSize, int squares)
{
    if (bufSize == nullptr) return StatusNullPointer;
    if (order < 1) return StatusBadSize;
    entry(bufSize, 0) = wrapMul(order, wrapAdd(wrapMul(squares, order), 5), int{sizeof(T)});
    return StatusOk;
}

}  // namespace vorm::eigen
