// vormQRBackSubst: one matrix and one vector (mv), one matrix and an array of vectors (mva), an array of
// matrices paired with an array of vectors (mava). The matrix holds the factors and is read only.
#pragma once

#include "factor/layers.hpp"
#include "factor/qr/qr_decomp.hpp"

// The operands by layout, in the order and with the names of the exported prototypes.
#define QR_MV_PARAMS(T)                                                                                              \
    const T *src, int srcStride1, int srcStride2, T *buffer, const T *src2, int src2Stride2, T *dst, int dstStride2, \
        int width, int height
#define QR_MV_ARGS src, srcStride1, srcStride2, buffer, src2, src2Stride2, dst, dstStride2, width, height
#define QR_MV_PARAMS_P(T)                                                                              \
    const T *const *srcPointers, int srcShift, T *buffer, const T *const *src2Pointers, int src2Shift, \
        T *const *dstPointers, int dstShift, int width, int height
#define QR_MV_ARGS_P srcPointers, srcShift, buffer, src2Pointers, src2Shift, dstPointers, dstShift, width, height
#define QR_MVA_PARAMS(T)                                                                                              \
    const T *src, int srcStride1, int srcStride2, T *buffer, const T *src2, int src2Stride0, int src2Stride2, T *dst, \
        int dstStride0, int dstStride2, int width, int height, int count
#define QR_MVA_ARGS                                                                                                  \
    src, srcStride1, srcStride2, buffer, src2, src2Stride0, src2Stride2, dst, dstStride0, dstStride2, width, height, \
        count
#define QR_MVA_PARAMS_L(T)                                                                                             \
    const T *src, int srcStride1, int srcStride2, T *buffer, const T *const *src2List, int src2Shift, int src2Stride2, \
        T *const *dstList, int dstShift, int dstStride2, int width, int height, int count
#define QR_MVA_ARGS_L                                                                                            \
    src, srcStride1, srcStride2, buffer, src2List, src2Shift, src2Stride2, dstList, dstShift, dstStride2, width, \
        height, count
#define QR_MVA_PARAMS_P(T)                                                                             \
    const T *const *srcPointers, int srcShift, T *buffer, const T *const *src2Pointers, int src2Shift, \
        int src2Stride0, T *const *dstPointers, int dstShift, int dstStride0, int width, int height, int count
#define QR_MVA_ARGS_P                                                                                              \
    srcPointers, srcShift, buffer, src2Pointers, src2Shift, src2Stride0, dstPointers, dstShift, dstStride0, width, \
        height, count
#define QR_MAVA_PARAMS(T)                                                                                    \
    const T *src, int srcStride0, int srcStride1, int srcStride2, T *buffer, const T *src2, int src2Stride0, \
        int src2Stride2, T *dst, int dstStride0, int dstStride2, int width, int height, int count
#define QR_MAVA_ARGS                                                                                              \
    src, srcStride0, srcStride1, srcStride2, buffer, src2, src2Stride0, src2Stride2, dst, dstStride0, dstStride2, \
        width, height, count
#define QR_MAVA_PARAMS_L(T)                                                                                     \
    const T *const *srcList, int srcShift, int srcStride1, int srcStride2, T *buffer, const T *const *src2List, \
        int src2Shift, int src2Stride2, T *const *dstList, int dstShift, int dstStride2, int width, int height, \
        int count
#define QR_MAVA_ARGS_L                                                                                      \
    srcList, srcShift, srcStride1, srcStride2, buffer, src2List, src2Shift, src2Stride2, dstList, dstShift, \
        dstStride2, width, height, count
#define QR_MAVA_PARAMS_P(T)                                                                                            \
    const T *const *srcPointers, int srcShift, int srcStride0, T *buffer, const T *const *src2Pointers, int src2Shift, \
        int src2Stride0, T *const *dstPointers, int dstShift, int dstStride0, int width, int height, int count
#define QR_MAVA_ARGS_P                                                                                      \
    srcPointers, srcShift, srcStride0, buffer, src2Pointers, src2Shift, src2Stride0, dstPointers, dstShift, \
        dstStride0, width, height, count

namespace vorm::factor {

// width height + (width + height) count and (width (height + 1) + height) count
constexpr Work qrMvaWork(int width, int height, int count, int picoseconds)
{
    return workOf(wrapAdd(wrapMul(width, height), wrapMul(wrapAdd(width, height), count)), picoseconds, width, height,
                  count);
}
constexpr Work qrMavaWork(int width, int height, int count, int picoseconds)
{
    return workOf(wrapMul(wrapAdd(wrapMul(width, wrapAdd(height, 1)), height), count), picoseconds, width, height,
                  count);
}

template <class T>
VORM_INLINE auto qrMv(QR_MV_PARAMS(T))
{
    return callOf<T, QrTests>(Matrix{src, srcStride1, srcStride2}, Buffer{buffer, height}, Vector{src2, src2Stride2},
                              Vector{dst, dstStride2}, Size{width}, Size{height}, noWiderThanHigh(width, height));
}
template <class T>
VORM_INLINE auto qrMvP(QR_MV_PARAMS_P(T))
{
    return callOf<T, QrTests>(MatrixPointers{srcPointers, srcShift, width}, Buffer{buffer, height},
                              VectorPointers{src2Pointers, src2Shift}, VectorPointers{dstPointers, dstShift},
                              Size{width}, Size{height}, noWiderThanHigh(width, height));
}

template <class T>
VORM_INLINE auto qrMva(QR_MVA_PARAMS(T))
{
    return arrayCallOf<T, QrTests>(
        qrMvaWork(width, height, count, byType<T>(150, 270)), count, Matrix{src, srcStride1, srcStride2},
        Buffer{buffer, height}, VectorArray{src2, src2Stride0, src2Stride2}, VectorArray{dst, dstStride0, dstStride2},
        Size{width}, Size{height}, noWiderThanHigh(width, height));
}
template <class T>
VORM_INLINE auto qrMvaL(QR_MVA_PARAMS_L(T))
{
    return arrayCallOf<T, QrTests>(
        qrMvaWork(width, height, count, byType<T>(170, 280)), count, Matrix{src, srcStride1, srcStride2},
        Buffer{buffer, height}, VectorList{src2List, src2Shift, src2Stride2}, VectorList{dstList, dstShift, dstStride2},
        Size{width}, Size{height}, noWiderThanHigh(width, height));
}
template <class T>
VORM_INLINE auto qrMvaP(QR_MVA_PARAMS_P(T))
{
    return arrayCallOf<T, QrTests>(qrMvaWork(width, height, count, byType<T>(130, 260)), count,
                                   MatrixPointers{srcPointers, srcShift, width}, Buffer{buffer, height},
                                   VectorArrayPointers{src2Pointers, src2Shift, src2Stride0},
                                   VectorArrayPointers{dstPointers, dstShift, dstStride0}, Size{width}, Size{height},
                                   noWiderThanHigh(width, height));
}

template <class T>
VORM_INLINE auto qrMava(QR_MAVA_PARAMS(T))
{
    return arrayCallOf<T, QrTests>(qrMavaWork(width, height, count, byType<T>(330, 600)), count,
                                   MatrixArray{src, srcStride0, srcStride1, srcStride2}, Buffer{buffer, height},
                                   VectorArray{src2, src2Stride0, src2Stride2},
                                   VectorArray{dst, dstStride0, dstStride2}, Size{width}, Size{height},
                                   noWiderThanHigh(width, height));
}
template <class T>
VORM_INLINE auto qrMavaL(QR_MAVA_PARAMS_L(T))
{
    return arrayCallOf<T, QrTests>(qrMavaWork(width, height, count, byType<T>(350, 630)), count,
                                   MatrixList{srcList, srcShift, srcStride1, srcStride2}, Buffer{buffer, height},
                                   VectorList{src2List, src2Shift, src2Stride2},
                                   VectorList{dstList, dstShift, dstStride2}, Size{width}, Size{height},
                                   noWiderThanHigh(width, height));
}
template <class T>
VORM_INLINE auto qrMavaP(QR_MAVA_PARAMS_P(T))
{
    return arrayCallOf<T, QrTests>(qrMavaWork(width, height, count, byType<T>(280, 620)), count,
                                   MatrixArrayPointers{srcPointers, srcShift, srcStride0, width},
                                   Buffer{buffer, height}, VectorArrayPointers{src2Pointers, src2Shift, src2Stride0},
                                   VectorArrayPointers{dstPointers, dstShift, dstStride0}, Size{width}, Size{height},
                                   noWiderThanHigh(width, height));
}

}  // namespace vorm::factor
