// vormEigenValuesVectorsRight and Left, which share a shape, and vormEigenValuesVectors with both kinds of vectors, of
// one matrix (m) and of an array of matrices (ma).
#pragma once

#include "eigen/layers.hpp"
#include "frame/call.hpp"

// The operands by layout, in the order and with the names of the exported prototypes.
#define EIGEN_SIDE_M_PARAMS(T)                                                                                   \
    const T *src, int srcStride1, int srcStride2, T *dstVectors, int dstStride1, int dstStride2, T *dstValuesRe, \
        T *dstValuesIm, int order, T *buffer
#define EIGEN_SIDE_M_ARGS \
    src, srcStride1, srcStride2, dstVectors, dstStride1, dstStride2, dstValuesRe, dstValuesIm, order, buffer
#define EIGEN_SIDE_M_PARAMS_P(T)                                                                          \
    const T *const *srcPointers, int srcShift, T *const *dstVectorPointers, int dstShift, T *dstValuesRe, \
        T *dstValuesIm, int order, T *buffer
#define EIGEN_SIDE_M_ARGS_P srcPointers, srcShift, dstVectorPointers, dstShift, dstValuesRe, dstValuesIm, order, buffer
#define EIGEN_SIDE_MA_PARAMS(T)                                                                                  \
    const T *src, int srcStride0, int srcStride1, int srcStride2, T *dstVectors, int dstStride0, int dstStride1, \
        int dstStride2, T *dstValuesRe, T *dstValuesIm, int order, int count, T *buffer
#define EIGEN_SIDE_MA_ARGS                                                                                             \
    src, srcStride0, srcStride1, srcStride2, dstVectors, dstStride0, dstStride1, dstStride2, dstValuesRe, dstValuesIm, \
        order, count, buffer
#define EIGEN_SIDE_MA_PARAMS_L(T)                                                                                 \
    const T *const *srcList, int srcShift, int srcStride1, int srcStride2, T *const *dstVectorList, int dstShift, \
        int dstStride1, int dstStride2, T *dstValuesRe, T *dstValuesIm, int order, int count, T *buffer
#define EIGEN_SIDE_MA_ARGS_L                                                                                 \
    srcList, srcShift, srcStride1, srcStride2, dstVectorList, dstShift, dstStride1, dstStride2, dstValuesRe, \
        dstValuesIm, order, count, buffer
#define EIGEN_SIDE_MA_PARAMS_P(T)                                                                         \
    const T *const *srcPointers, int srcShift, int srcStride0, T *const *dstVectorPointers, int dstShift, \
        int dstStride0, T *dstValuesRe, T *dstValuesIm, int order, int count, T *buffer
#define EIGEN_SIDE_MA_ARGS_P                                                                                     \
    srcPointers, srcShift, srcStride0, dstVectorPointers, dstShift, dstStride0, dstValuesRe, dstValuesIm, order, \
        count, buffer

#define EIGEN_SIDES_M_PARAMS(T)                                                                                     \
    const T *src, int srcStride1, int srcStride2, T *dstVectors1, int dst1Stride1, int dst1Stride2, T *dstVectors2, \
        int dst2Stride1, int dst2Stride2, T *dstValuesRe, T *dstValuesIm, int order, T *buffer
#define EIGEN_SIDES_M_ARGS                                                                                     \
    src, srcStride1, srcStride2, dstVectors1, dst1Stride1, dst1Stride2, dstVectors2, dst2Stride1, dst2Stride2, \
        dstValuesRe, dstValuesIm, order, buffer
#define EIGEN_SIDES_M_PARAMS_P(T)                                                           \
    const T *const *srcPointers, int srcShift, T *const *dstVectorPointers1, int dst1Shift, \
        T *const *dstVectorPointers2, int dst2Shift, T *dstValuesRe, T *dstValuesIm, int order, T *buffer
#define EIGEN_SIDES_M_ARGS_P                                                                                       \
    srcPointers, srcShift, dstVectorPointers1, dst1Shift, dstVectorPointers2, dst2Shift, dstValuesRe, dstValuesIm, \
        order, buffer
#define EIGEN_SIDES_MA_PARAMS(T)                                                                                    \
    const T *src, int srcStride0, int srcStride1, int srcStride2, T *dstVectors1, int dst1Stride0, int dst1Stride1, \
        int dst1Stride2, T *dstVectors2, int dst2Stride0, int dst2Stride1, int dst2Stride2, T *dstValuesRe,         \
        T *dstValuesIm, int order, int count, T *buffer
#define EIGEN_SIDES_MA_ARGS                                                                                   \
    src, srcStride0, srcStride1, srcStride2, dstVectors1, dst1Stride0, dst1Stride1, dst1Stride2, dstVectors2, \
        dst2Stride0, dst2Stride1, dst2Stride2, dstValuesRe, dstValuesIm, order, count, buffer
#define EIGEN_SIDES_MA_PARAMS_L(T)                                                                                   \
    const T *const *srcList, int srcShift, int srcStride1, int srcStride2, T *const *dstVectorList1, int dst1Shift,  \
        int dst1Stride1, int dst1Stride2, T *const *dstVectorList2, int dst2Shift, int dst2Stride1, int dst2Stride2, \
        T *dstValuesRe, T *dstValuesIm, int order, int count, T *buffer
#define EIGEN_SIDES_MA_ARGS_L                                                                                       \
    srcList, srcShift, srcStride1, srcStride2, dstVectorList1, dst1Shift, dst1Stride1, dst1Stride2, dstVectorList2, \
        dst2Shift, dst2Stride1, dst2Stride2, dstValuesRe, dstValuesIm, order, count, buffer
#define EIGEN_SIDES_MA_PARAMS_P(T)                                                                                     \
    const T *const *srcPointers, int srcShift, int srcStride0, T *const *dstVectorPointers1, int dst1Shift,            \
        int dst1Stride0, T *const *dstVectorPointers2, int dst2Shift, int dst2Stride0, T *dstValuesRe, T *dstValuesIm, \
        int order, int count, T *buffer
#define EIGEN_SIDES_MA_ARGS_P                                                                                     \
    srcPointers, srcShift, srcStride0, dstVectorPointers1, dst1Shift, dst1Stride0, dstVectorPointers2, dst2Shift, \
        dst2Stride0, dstValuesRe, dstValuesIm, order, count, buffer

namespace vorm::eigen {

// The source is tested before the destinations, and two destinations are tested as one.
using EigenVectorsTests = PartByPart<Tests<Test::null, Test::size, Test::count>, Tests<Test::shift, Test::stride>>;

// order (3 order + 1) count
constexpr Work eigenVectorsWork(int order, int count, int picoseconds)
{
    return workOf(wrapMul(order, wrapAdd(wrapMul(3, order), 1), count), picoseconds, order, order, count);
}
// 3 order^2 + 5 order elements
template <class T>
VORM_INLINE constexpr WorkSpace<T> eigenVectorsBuffer(T* buffer, int order)
{
    const auto n = static_cast<std::size_t>(order);
    return {buffer, n * (3 * n + 5)};
}

// The vectors of one side. -----------------------------------------------------------------------------------------

template <class T>
VORM_INLINE auto eigenSideM(EIGEN_SIDE_M_PARAMS(T))
{
    return callOf<T, EigenVectorsTests>(Matrix{src, srcStride1, srcStride2}, Matrix{dstVectors, dstStride1, dstStride2},
                                        ObjectTable{dstValuesRe, order}, ObjectTable{dstValuesIm, order}, Size{order},
                                        eigenVectorsBuffer(buffer, order));
}
template <class T>
VORM_INLINE auto eigenSideMP(EIGEN_SIDE_M_PARAMS_P(T))
{
    return callOf<T, EigenVectorsTests>(MatrixPointers{srcPointers, srcShift, order},
                                        MatrixPointers{dstVectorPointers, dstShift, order},
                                        ObjectTable{dstValuesRe, order}, ObjectTable{dstValuesIm, order}, Size{order},
                                        eigenVectorsBuffer(buffer, order));
}
template <class T>
VORM_INLINE auto eigenSideMa(EIGEN_SIDE_MA_PARAMS(T))
{
    return arrayCallOf<T, EigenVectorsTests>(
        eigenVectorsWork(order, count, byType<T>(30000, 52000)), MatrixArray{src, srcStride0, srcStride1, srcStride2},
        MatrixArray{dstVectors, dstStride0, dstStride1, dstStride2}, ObjectTable{dstValuesRe, order},
        ObjectTable{dstValuesIm, order}, Size{order}, Count{count}, eigenVectorsBuffer(buffer, order));
}
template <class T>
VORM_INLINE auto eigenSideMaL(EIGEN_SIDE_MA_PARAMS_L(T))
{
    return arrayCallOf<T, EigenVectorsTests>(
        eigenVectorsWork(order, count, byType<T>(30000, 52000)), MatrixList{srcList, srcShift, srcStride1, srcStride2},
        MatrixList{dstVectorList, dstShift, dstStride1, dstStride2}, ObjectTable{dstValuesRe, order},
        ObjectTable{dstValuesIm, order}, Size{order}, Count{count}, eigenVectorsBuffer(buffer, order));
}
template <class T>
VORM_INLINE auto eigenSideMaP(EIGEN_SIDE_MA_PARAMS_P(T))
{
    return arrayCallOf<T, EigenVectorsTests>(eigenVectorsWork(order, count, byType<T>(30000, 52000)),
                                             MatrixArrayPointers{srcPointers, srcShift, srcStride0, order},
                                             MatrixArrayPointers{dstVectorPointers, dstShift, dstStride0, order},
                                             ObjectTable{dstValuesRe, order}, ObjectTable{dstValuesIm, order},
                                             Size{order}, Count{count}, eigenVectorsBuffer(buffer, order));
}

// The vectors of both sides: the right ones, then the left ones. ---------------------------------------------------

template <class T>
VORM_INLINE auto eigenSidesM(EIGEN_SIDES_M_PARAMS(T))
{
    return callOf<T, EigenVectorsTests>(
        Matrix{src, srcStride1, srcStride2},
        Together{Matrix{dstVectors1, dst1Stride1, dst1Stride2}, Matrix{dstVectors2, dst2Stride1, dst2Stride2}},
        ObjectTable{dstValuesRe, order}, ObjectTable{dstValuesIm, order}, Size{order},
        eigenVectorsBuffer(buffer, order));
}
template <class T>
VORM_INLINE auto eigenSidesMP(EIGEN_SIDES_M_PARAMS_P(T))
{
    return callOf<T, EigenVectorsTests>(MatrixPointers{srcPointers, srcShift, order},
                                        Together{MatrixPointers{dstVectorPointers1, dst1Shift, order},
                                                 MatrixPointers{dstVectorPointers2, dst2Shift, order}},
                                        ObjectTable{dstValuesRe, order}, ObjectTable{dstValuesIm, order}, Size{order},
                                        eigenVectorsBuffer(buffer, order));
}
template <class T>
VORM_INLINE auto eigenSidesMa(EIGEN_SIDES_MA_PARAMS(T))
{
    return arrayCallOf<T, EigenVectorsTests>(eigenVectorsWork(order, count, byType<T>(40000, 65000)),
                                             MatrixArray{src, srcStride0, srcStride1, srcStride2},
                                             Together{MatrixArray{dstVectors1, dst1Stride0, dst1Stride1, dst1Stride2},
                                                      MatrixArray{dstVectors2, dst2Stride0, dst2Stride1, dst2Stride2}},
                                             ObjectTable{dstValuesRe, order}, ObjectTable{dstValuesIm, order},
                                             Size{order}, Count{count}, eigenVectorsBuffer(buffer, order));
}
template <class T>
VORM_INLINE auto eigenSidesMaL(EIGEN_SIDES_MA_PARAMS_L(T))
{
    return arrayCallOf<T, EigenVectorsTests>(eigenVectorsWork(order, count, byType<T>(40000, 65000)),
                                             MatrixList{srcList, srcShift, srcStride1, srcStride2},
                                             Together{MatrixList{dstVectorList1, dst1Shift, dst1Stride1, dst1Stride2},
                                                      MatrixList{dstVectorList2, dst2Shift, dst2Stride1, dst2Stride2}},
                                             ObjectTable{dstValuesRe, order}, ObjectTable{dstValuesIm, order},
                                             Size{order}, Count{count}, eigenVectorsBuffer(buffer, order));
}
template <class T>
VORM_INLINE auto eigenSidesMaP(EIGEN_SIDES_MA_PARAMS_P(T))
{
    return arrayCallOf<T, EigenVectorsTests>(
        eigenVectorsWork(order, count, byType<T>(40000, 65000)),
        MatrixArrayPointers{srcPointers, srcShift, srcStride0, order},
        Together{MatrixArrayPointers{dstVectorPointers1, dst1Shift, dst1Stride0, order},
                 MatrixArrayPointers{dstVectorPointers2, dst2Shift, dst2Stride0, order}},
        ObjectTable{dstValuesRe, order}, ObjectTable{dstValuesIm, order}, Size{order}, Count{count},
        eigenVectorsBuffer(buffer, order));
}

}  // namespace vorm::eigen
