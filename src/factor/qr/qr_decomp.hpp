// vormQRDecomp of one matrix (m) and of an array of matrices (ma): A = Q R by Householder reflections.
#pragma once

#include "factor/layers.hpp"
#include "frame/call.hpp"

// The operands by layout, in the order and with the names of the exported prototypes.
#define QR_DECOMP_M_PARAMS(T)                                                                                   \
    const T *src, int srcStride1, int srcStride2, T *buffer, T *dst, int dstStride1, int dstStride2, int width, \
        int height
#define QR_DECOMP_M_ARGS src, srcStride1, srcStride2, buffer, dst, dstStride1, dstStride2, width, height
#define QR_DECOMP_M_PARAMS_P(T) \
    const T *const *srcPointers, int srcShift, T *buffer, T *const *dstPointers, int dstShift, int width, int height
#define QR_DECOMP_M_ARGS_P srcPointers, srcShift, buffer, dstPointers, dstShift, width, height
#define QR_DECOMP_MA_PARAMS(T)                                                                                       \
    const T *src, int srcStride0, int srcStride1, int srcStride2, T *buffer, T *dst, int dstStride0, int dstStride1, \
        int dstStride2, int width, int height, int count
#define QR_DECOMP_MA_ARGS \
    src, srcStride0, srcStride1, srcStride2, buffer, dst, dstStride0, dstStride1, dstStride2, width, height, count
#define QR_DECOMP_MA_PARAMS_L(T)                                                                                       \
    const T *const *srcList, int srcShift, int srcStride1, int srcStride2, T *buffer, T *const *dstList, int dstShift, \
        int dstStride1, int dstStride2, int width, int height, int count
#define QR_DECOMP_MA_ARGS_L \
    srcList, srcShift, srcStride1, srcStride2, buffer, dstList, dstShift, dstStride1, dstStride2, width, height, count
#define QR_DECOMP_MA_PARAMS_P(T)                                                                               \
    const T *const *srcPointers, int srcShift, int srcStride0, T *buffer, T *const *dstPointers, int dstShift, \
        int dstStride0, int width, int height, int count
#define QR_DECOMP_MA_ARGS_P \
    srcPointers, srcShift, srcStride0, buffer, dstPointers, dstShift, dstStride0, width, height, count

namespace vorm::factor {

// Whether the sizes fit is tested last.
using QrTests = Tests<Test::null, Test::count, Test::size, Test::stride, Test::shift, Test::fit>;
VORM_INLINE Fit noWiderThanHigh(int width, int height) { return {width > height, 0}; }

// 2 width height count
constexpr Work qrDecompWork(int width, int height, int count, int picoseconds)
{
    return workOf(wrapMul(2, width, height, count), picoseconds, width, height, count);
}

template <class T>
VORM_INLINE auto qrDecompM(QR_DECOMP_M_PARAMS(T))
{
    return callOf<T, QrTests>(Matrix{src, srcStride1, srcStride2}, Buffer{buffer, height},
                              Matrix{dst, dstStride1, dstStride2}, Size{width}, Size{height},
                              noWiderThanHigh(width, height));
}
template <class T>
VORM_INLINE auto qrDecompMP(QR_DECOMP_M_PARAMS_P(T))
{
    return callOf<T, QrTests>(MatrixPointers{srcPointers, srcShift, width}, Buffer{buffer, height},
                              MatrixPointers{dstPointers, dstShift, width}, Size{width}, Size{height},
                              noWiderThanHigh(width, height));
}
template <class T>
VORM_INLINE auto qrDecompMa(QR_DECOMP_MA_PARAMS(T))
{
    return arrayCallOf<T, QrTests>(qrDecompWork(width, height, count, byType<T>(820, 1700)), count,
                                   MatrixArray{src, srcStride0, srcStride1, srcStride2}, Buffer{buffer, height},
                                   MatrixArray{dst, dstStride0, dstStride1, dstStride2}, Size{width}, Size{height},
                                   noWiderThanHigh(width, height));
}
template <class T>
VORM_INLINE auto qrDecompMaL(QR_DECOMP_MA_PARAMS_L(T))
{
    return arrayCallOf<T, QrTests>(qrDecompWork(width, height, count, byType<T>(850, 1700)), count,
                                   MatrixList{srcList, srcShift, srcStride1, srcStride2}, Buffer{buffer, height},
                                   MatrixList{dstList, dstShift, dstStride1, dstStride2}, Size{width}, Size{height},
                                   noWiderThanHigh(width, height));
}
template <class T>
VORM_INLINE auto qrDecompMaP(QR_DECOMP_MA_PARAMS_P(T))
{
    return arrayCallOf<T, QrTests>(qrDecompWork(width, height, count, byType<T>(760, 1700)), count,
                                   MatrixArrayPointers{srcPointers, srcShift, srcStride0, width},
                                   Buffer{buffer, height},
                                   MatrixArrayPointers{dstPointers, dstShift, dstStride0, width}, Size{width},
                                   Size{height}, noWiderThanHigh(width, height));
}

}  // namespace vorm::factor
