// The mma shape: one common matrix and an array of matrices, dst[n] = src1 op src2[n]. A kind reads either one
// transposed and so makes the shapes mta, tma and tta of it.
#pragma once

#include "elementwise/layers.hpp"
#include "elementwise/matrix_kinds.hpp"
#include "frame/call.hpp"

// The operands by layout, in the order and with the names of the exported prototypes.
#define MMA_PARAMS(T)                                                                                   \
    const T *pSrc1, int src1Stride1, int src1Stride2, const T *pSrc2, int src2Stride0, int src2Stride1, \
        int src2Stride2, T *pDst, int dstStride0, int dstStride1, int dstStride2, int width, int height, int count
#define MMA_ARGS                                                                                                 \
    pSrc1, src1Stride1, src1Stride2, pSrc2, src2Stride0, src2Stride1, src2Stride2, pDst, dstStride0, dstStride1, \
        dstStride2, width, height, count
#define MMA_PARAMS_L(T)                                                                                        \
    const T *pSrc1, int src1Stride1, int src1Stride2, const T *const *ppSrc2, int src2Shift, int src2Stride1,  \
        int src2Stride2, T *const *ppDst, int dstShift, int dstStride1, int dstStride2, int width, int height, \
        int count
#define MMA_ARGS_L                                                                                             \
    pSrc1, src1Stride1, src1Stride2, ppSrc2, src2Shift, src2Stride1, src2Stride2, ppDst, dstShift, dstStride1, \
        dstStride2, width, height, count
#define MMA_PARAMS_P(T)                                                                                             \
    const T *const *ppSrc1, int src1Shift, const T *const *ppSrc2, int src2Shift, int src2Stride0, T *const *ppDst, \
        int dstShift, int dstStride0, int width, int height, int count
#define MMA_ARGS_P ppSrc1, src1Shift, ppSrc2, src2Shift, src2Stride0, ppDst, dstShift, dstStride0, width, height, count

namespace vorm::elementwise {

constexpr Work mmaWork(int width, int height, int count, int picoseconds)
{
    return workOf(wrapMul(width, height, wrapAdd(wrapMul(2, count), 1)), picoseconds, width, height, count);
}

template <class Kind, class T>
VORM_INLINE auto mma(MMA_PARAMS(T))
{
    return arrayCallOf<T>(mmaWork(width, height, count, byType<T>(200, 460)), count,
                          Kind::First::used(Matrix{pSrc1, src1Stride1, src1Stride2}),
                          Kind::Second::used(MatrixArray{pSrc2, src2Stride0, src2Stride1, src2Stride2}),
                          MatrixArray{pDst, dstStride0, dstStride1, dstStride2}, Size{width}, Size{height});
}
template <class Kind, class T>
VORM_INLINE auto mmaL(MMA_PARAMS_L(T))
{
    return arrayCallOf<T>(mmaWork(width, height, count, byType<T>(210, 520)), count,
                          Kind::First::used(Matrix{pSrc1, src1Stride1, src1Stride2}),
                          Kind::Second::used(MatrixList{ppSrc2, src2Shift, src2Stride1, src2Stride2}),
                          MatrixList{ppDst, dstShift, dstStride1, dstStride2}, Size{width}, Size{height});
}
template <class Kind, class T>
VORM_INLINE auto mmaP(MMA_PARAMS_P(T))
{
    return arrayCallOf<T>(
        mmaWork(width, height, count, byType<T>(200, 460)), count,
        Kind::First::used(MatrixPointers{ppSrc1, src1Shift, Kind::First::columns(width, height)}),
        Kind::Second::used(MatrixArrayPointers{ppSrc2, src2Shift, src2Stride0, Kind::Second::columns(width, height)}),
        MatrixArrayPointers{ppDst, dstShift, dstStride0, width}, Size{width}, Size{height});
}

}  // namespace vorm::elementwise
