// The mama shape: two arrays of matrices, dst[n] = src1[n] op src2[n]. A kind reads either one transposed and so
// makes the shapes mata, tama and tata of it.
#pragma once

#include "elementwise/layers.hpp"
#include "elementwise/matrix_kinds.hpp"
#include "frame/call.hpp"

// The operands by layout, in the order and with the names of the exported prototypes.
#define MAMA_PARAMS(T)                                                                                        \
    const T *pSrc1, int src1Stride0, int src1Stride1, int src1Stride2, const T *pSrc2, int src2Stride0,       \
        int src2Stride1, int src2Stride2, T *pDst, int dstStride0, int dstStride1, int dstStride2, int width, \
        int height, int count
#define MAMA_ARGS                                                                                                 \
    pSrc1, src1Stride0, src1Stride1, src1Stride2, pSrc2, src2Stride0, src2Stride1, src2Stride2, pDst, dstStride0, \
        dstStride1, dstStride2, width, height, count
#define MAMA_PARAMS_L(T)                                                                                            \
    const T *const *ppSrc1, int src1Shift, int src1Stride1, int src1Stride2, const T *const *ppSrc2, int src2Shift, \
        int src2Stride1, int src2Stride2, T *const *ppDst, int dstShift, int dstStride1, int dstStride2, int width, \
        int height, int count
#define MAMA_ARGS_L                                                                                            \
    ppSrc1, src1Shift, src1Stride1, src1Stride2, ppSrc2, src2Shift, src2Stride1, src2Stride2, ppDst, dstShift, \
        dstStride1, dstStride2, width, height, count
#define MAMA_PARAMS_P(T)                                                                                            \
    const T *const *ppSrc1, int src1Shift, int src1Stride0, const T *const *ppSrc2, int src2Shift, int src2Stride0, \
        T *const *ppDst, int dstShift, int dstStride0, int width, int height, int count
#define MAMA_ARGS_P \
    ppSrc1, src1Shift, src1Stride0, ppSrc2, src2Shift, src2Stride0, ppDst, dstShift, dstStride0, width, height, count

namespace vorm::elementwise {

constexpr Work mamaWork(int width, int height, int count, int picoseconds)
{
    return workOf(wrapMul(3, width, height, count), picoseconds, width, height, count);
}

template <class Kind, class T>
VORM_INLINE auto mama(MAMA_PARAMS(T))
{
    return arrayCallOf<T>(mamaWork(width, height, count, byType<T>(340, 750)), count,
                          Kind::First::used(MatrixArray{pSrc1, src1Stride0, src1Stride1, src1Stride2}),
                          Kind::Second::used(MatrixArray{pSrc2, src2Stride0, src2Stride1, src2Stride2}),
                          MatrixArray{pDst, dstStride0, dstStride1, dstStride2}, Size{width}, Size{height});
}
template <class Kind, class T>
VORM_INLINE auto mamaL(MAMA_PARAMS_L(T))
{
    return arrayCallOf<T>(mamaWork(width, height, count, byType<T>(340, 700)), count,
                          Kind::First::used(MatrixList{ppSrc1, src1Shift, src1Stride1, src1Stride2}),
                          Kind::Second::used(MatrixList{ppSrc2, src2Shift, src2Stride1, src2Stride2}),
                          MatrixList{ppDst, dstShift, dstStride1, dstStride2}, Size{width}, Size{height});
}
template <class Kind, class T>
VORM_INLINE auto mamaP(MAMA_PARAMS_P(T))
{
    return arrayCallOf<T>(
        mamaWork(width, height, count, byType<T>(340, 730)), count,
        Kind::First::used(MatrixArrayPointers{ppSrc1, src1Shift, src1Stride0, Kind::First::columns(width, height)}),
        Kind::Second::used(MatrixArrayPointers{ppSrc2, src2Shift, src2Stride0, Kind::Second::columns(width, height)}),
        MatrixArrayPointers{ppDst, dstShift, dstStride0, width}, Size{width}, Size{height});
}

}  // namespace vorm::elementwise
