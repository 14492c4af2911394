// The mam shape: an array of matrices and one common matrix, dst[n] = src1[n] op src2. A kind reads either one
// transposed and so makes the shapes mat, tam and tat of it.
#pragma once

#include "elementwise/layers.hpp"
#include "elementwise/matrix_kinds.hpp"
#include "frame/call.hpp"

// The operands by layout, in the order and with the names of the exported prototypes.
#define MAM_PARAMS(T)                                                                                   \
    const T *pSrc1, int src1Stride0, int src1Stride1, int src1Stride2, const T *pSrc2, int src2Stride1, \
        int src2Stride2, T *pDst, int dstStride0, int dstStride1, int dstStride2, int width, int height, int count
#define MAM_ARGS                                                                                                 \
    pSrc1, src1Stride0, src1Stride1, src1Stride2, pSrc2, src2Stride1, src2Stride2, pDst, dstStride0, dstStride1, \
        dstStride2, width, height, count
#define MAM_PARAMS_L(T)                                                                                        \
    const T *const *ppSrc1, int src1Shift, int src1Stride1, int src1Stride2, const T *pSrc2, int src2Stride1,  \
        int src2Stride2, T *const *ppDst, int dstShift, int dstStride1, int dstStride2, int width, int height, \
        int count
#define MAM_ARGS_L                                                                                             \
    ppSrc1, src1Shift, src1Stride1, src1Stride2, pSrc2, src2Stride1, src2Stride2, ppDst, dstShift, dstStride1, \
        dstStride2, width, height, count
#define MAM_PARAMS_P(T)                                                                                             \
    const T *const *ppSrc1, int src1Shift, int src1Stride0, const T *const *ppSrc2, int src2Shift, T *const *ppDst, \
        int dstShift, int dstStride0, int width, int height, int count
#define MAM_ARGS_P ppSrc1, src1Shift, src1Stride0, ppSrc2, src2Shift, ppDst, dstShift, dstStride0, width, height, count

namespace vorm::elementwise {

constexpr Work mamWork(int width, int height, int count, int picoseconds)
{
    return workOf(wrapMul(width, height, wrapAdd(wrapMul(2, count), 1)), picoseconds, width, height, count);
}

template <class Kind, class T>
VORM_INLINE auto mam(MAM_PARAMS(T))
{
    return arrayCallOf<T>(mamWork(width, height, count, byType<T>(200, 460)), count,
                          Kind::First::used(MatrixArray{pSrc1, src1Stride0, src1Stride1, src1Stride2}),
                          Kind::Second::used(Matrix{pSrc2, src2Stride1, src2Stride2}),
                          MatrixArray{pDst, dstStride0, dstStride1, dstStride2}, Size{width}, Size{height});
}
template <class Kind, class T>
VORM_INLINE auto mamL(MAM_PARAMS_L(T))
{
    return arrayCallOf<T>(mamWork(width, height, count, byType<T>(210, 520)), count,
                          Kind::First::used(MatrixList{ppSrc1, src1Shift, src1Stride1, src1Stride2}),
                          Kind::Second::used(Matrix{pSrc2, src2Stride1, src2Stride2}),
                          MatrixList{ppDst, dstShift, dstStride1, dstStride2}, Size{width}, Size{height});
}
template <class Kind, class T>
VORM_INLINE auto mamP(MAM_PARAMS_P(T))
{
    return arrayCallOf<T>(
        mamWork(width, height, count, byType<T>(200, 460)), count,
        Kind::First::used(MatrixArrayPointers{ppSrc1, src1Shift, src1Stride0, Kind::First::columns(width, height)}),
        Kind::Second::used(MatrixPointers{ppSrc2, src2Shift, Kind::Second::columns(width, height)}),
        MatrixArrayPointers{ppDst, dstShift, dstStride0, width}, Size{width}, Size{height});
}

}  // namespace vorm::elementwise
