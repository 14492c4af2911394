// The mma shape: one common matrix and an array of matrices, dst[n] = src1 src2[n]. A kind of product reads
// either one transposed and so makes the shapes mta, tma and tta of it.
#pragma once

#include "frame/call.hpp"
#include "products/layers.hpp"
#include "products/matrix_kinds.hpp"
#include "products/paths.hpp"

// The operands by layout, in the order and with the names of the exported prototypes.
#define MMA_PARAMS(T)                                                                                                 \
    const T *pSrc1, int src1Stride1, int src1Stride2, int src1Width, int src1Height, const T *pSrc2, int src2Stride0, \
        int src2Stride1, int src2Stride2, int src2Width, int src2Height, T *pDst, int dstStride0, int dstStride1,     \
        int dstStride2, int count
#define MMA_ARGS                                                                                                     \
    pSrc1, src1Stride1, src1Stride2, src1Width, src1Height, pSrc2, src2Stride0, src2Stride1, src2Stride2, src2Width, \
        src2Height, pDst, dstStride0, dstStride1, dstStride2, count
#define MMA_PARAMS_L(T)                                                                                                \
    const T *pSrc1, int src1Stride1, int src1Stride2, int src1Width, int src1Height, const T *const *ppSrc2,           \
        int src2Shift, int src2Stride1, int src2Stride2, int src2Width, int src2Height, T *const *ppDst, int dstShift, \
        int dstStride1, int dstStride2, int count
#define MMA_ARGS_L                                                                                                  \
    pSrc1, src1Stride1, src1Stride2, src1Width, src1Height, ppSrc2, src2Shift, src2Stride1, src2Stride2, src2Width, \
        src2Height, ppDst, dstShift, dstStride1, dstStride2, count
#define MMA_PARAMS_P(T)                                                                                          \
    const T *const *ppSrc1, int src1Shift, int src1Width, int src1Height, const T *const *ppSrc2, int src2Shift, \
        int src2Stride0, int src2Width, int src2Height, T *const *ppDst, int dstShift, int dstStride0, int count
#define MMA_ARGS_P                                                                                                    \
    ppSrc1, src1Shift, src1Width, src1Height, ppSrc2, src2Shift, src2Stride0, src2Width, src2Height, ppDst, dstShift, \
        dstStride0, count

namespace vorm::products {

// W1 H1 + (M + K) N count
template <class Kind>
constexpr Work mmaWork(int src1Width, int src1Height, int src2Width, int src2Height, int count, int picoseconds)
{
    const Lengths d = Kind::lengths(src1Width, src1Height, src2Width, src2Height);
    return workOf(wrapAdd(wrapMul(src1Width, src1Height), wrapMul(wrapAdd(d.m, d.k), d.n, count)), picoseconds, d.m,
                  d.n, d.k, count);
}

template <class Kind, class T>
VORM_INLINE auto mma(MMA_PARAMS(T))
{
    return arrayCallOf<T>(mmaWork<Kind>(src1Width, src1Height, src2Width, src2Height, count, byType<T>(58, 95)), count,
                          Matrix{pSrc1, src1Stride1, src1Stride2}, Size{src1Width}, Size{src1Height},
                          MatrixArray{pSrc2, src2Stride0, src2Stride1, src2Stride2}, Size{src2Width}, Size{src2Height},
                          MatrixArray{pDst, dstStride0, dstStride1, dstStride2},
                          Kind::fit(src1Width, src1Height, src2Width, src2Height));
}
template <class Kind, class T>
VORM_INLINE auto mmaL(MMA_PARAMS_L(T))
{
    return arrayCallOf<T>(mmaWork<Kind>(src1Width, src1Height, src2Width, src2Height, count, byType<T>(60, 105)), count,
                          Matrix{pSrc1, src1Stride1, src1Stride2}, Size{src1Width}, Size{src1Height},
                          MatrixList{ppSrc2, src2Shift, src2Stride1, src2Stride2}, Size{src2Width}, Size{src2Height},
                          MatrixList{ppDst, dstShift, dstStride1, dstStride2},
                          Kind::fit(src1Width, src1Height, src2Width, src2Height));
}
template <class Kind, class T>
VORM_INLINE auto mmaP(MMA_PARAMS_P(T))
{
    return arrayCallOf<T>(
        mmaWork<Kind>(src1Width, src1Height, src2Width, src2Height, count, byType<T>(65, 120)), count,
        MatrixPointers{ppSrc1, src1Shift, src1Width}, Size{src1Width}, Size{src1Height},
        MatrixArrayPointers{ppSrc2, src2Shift, src2Stride0, src2Width}, Size{src2Width}, Size{src2Height},
        MatrixArrayPointers{ppDst, dstShift, dstStride0, Kind::lengths(src1Width, src1Height, src2Width, src2Height).n},
        Kind::fit(src1Width, src1Height, src2Width, src2Height));
}

}  // namespace vorm::products
