// The mma shape: one common matrix and an array of matrices, dst[n] = src1 src2[n]. A kind of product reads
// either one transposed and so makes the shapes mta, tma and tta of it.
#pragma once

#include "frame/checks.hpp"
#include "frame/team.hpp"
#include "products/layers.hpp"
#include "products/matrix_kernels.hpp"
#include "products/mm.hpp"

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

namespace vorm {

template <class T>
using MmaLayer = VormStatus(MMA_PARAMS(T));
template <class T>
using MmaLayerL = VormStatus(MMA_PARAMS_L(T));
template <class T>
using MmaLayerP = VormStatus(MMA_PARAMS_P(T));

// W1 H1 + (M + K) N count
template <class Kind>
constexpr int mmaWork(int src1Width, int src1Height, int src2Width, int src2Height, int count)
{
    const Lengths d = Kind::lengths(src1Width, src1Height, src2Width, src2Height);
    return wrapAdd(wrapMul(src1Width, src1Height), wrapMul(wrapAdd(d.m, d.k), d.n, count));
}

// Public layers. ----------------------------------------------------------------------------------

template <class Kind, int teamLimit, class T>
VORM_INLINE VormStatus mmaChecked(MmaLayer<T>* driver, MmaLayer<T>* kernel, MmaLayer<T>* kernelS2, MMA_PARAMS(T))
{
    if (anyNull(pSrc1, pSrc2, pDst)) return StatusNullPointer;
    if (count < 1) return StatusBadCount;
    if (anyBelowOne(src1Width, src1Height, src2Width, src2Height)) return StatusBadSize;
    if (!Kind::fits(src1Width, src1Height, src2Width, src2Height)) return StatusSizeMismatch;
    if (anyBadStride<T>(src1Stride1, src1Stride2, src2Stride0, src2Stride1, src2Stride2, dstStride0, dstStride1,
                        dstStride2))
        return StatusBadStride;

    const int work = mmaWork<Kind>(src1Width, src1Height, src2Width, src2Height, count);
    const bool isContiguous = contiguous<T>(src1Stride2, src2Stride2, dstStride2);
    if (work > (isContiguous ? teamLimit : teamLimitAnyStride)) return driver(MMA_ARGS);
    if (isContiguous) return kernel(MMA_ARGS);
    return kernelS2(MMA_ARGS);
}

template <class Kind, class T>
VORM_INLINE VormStatus mmaCheckedL(MmaLayerL<T>* driver, MmaLayerL<T>* kernel, MmaLayerL<T>* kernelS2, MMA_PARAMS_L(T))
{
    if (anyNull(pSrc1, ppSrc2, ppDst)) return StatusNullPointer;
    if (count < 1) return StatusBadCount;
    if (anyBelowOne(src1Width, src1Height, src2Width, src2Height)) return StatusBadSize;
    if (!Kind::fits(src1Width, src1Height, src2Width, src2Height)) return StatusSizeMismatch;
    if (anyBadStride<T>(src1Stride1, src1Stride2, src2Stride1, src2Stride2, dstStride1, dstStride2))
        return StatusBadStride;
    if (anyBadShift<T>(src2Shift, dstShift)) return StatusBadShift;

    const int work = mmaWork<Kind>(src1Width, src1Height, src2Width, src2Height, count);
    const bool isContiguous = contiguous<T>(src1Stride2, src2Stride2, dstStride2);
    if (work > (isContiguous ? teamLimitList : teamLimitAnyStride)) return driver(MMA_ARGS_L);
    if (isContiguous) return kernel(MMA_ARGS_L);
    return kernelS2(MMA_ARGS_L);
}

template <class Kind, class T>
VORM_INLINE VormStatus mmaCheckedP(MmaLayerP<T>* driver, MmaLayerP<T>* kernel, MMA_PARAMS_P(T))
{
    if (anyNull(ppSrc1, ppSrc2, ppDst)) return StatusNullPointer;
    if (count < 1) return StatusBadCount;
    if (anyBelowOne(src1Width, src1Height, src2Width, src2Height)) return StatusBadSize;
    if (!Kind::fits(src1Width, src1Height, src2Width, src2Height)) return StatusSizeMismatch;
    if (anyBadStride<T>(src2Stride0, dstStride0)) return StatusBadStride;
    if (anyBadShift<T>(src1Shift, src2Shift, dstShift)) return StatusBadShift;

    const int work = mmaWork<Kind>(src1Width, src1Height, src2Width, src2Height, count);
    if (work > teamLimitPointers) return driver(MMA_ARGS_P);
    return kernel(MMA_ARGS_P);
}

// Drivers. ----------------------------------------------------------------------------------------

template <class T>
VORM_INLINE VormStatus mmaTeam(MmaLayer<T>* contiguousKernel, MmaLayer<T>* kernelS2, MMA_PARAMS(T))
{
    auto* const kernel = contiguous<T>(src1Stride2, src2Stride2, dstStride2) ? contiguousKernel : kernelS2;
    return inTeam<Kernels::cannotFail>(count, [=](const Chunk& chunk) {
        return kernel(pSrc1, src1Stride1, src1Stride2, src1Width, src1Height,
                      advance(pSrc2, wrapMul(chunk.first, src2Stride0)), src2Stride0, src2Stride1, src2Stride2,
                      src2Width, src2Height, advance(pDst, wrapMul(chunk.first, dstStride0)), dstStride0, dstStride1,
                      dstStride2, chunk.objects);
    });
}

template <class T>
VORM_INLINE VormStatus mmaTeamL(MmaLayerL<T>* contiguousKernel, MmaLayerL<T>* kernelS2, MMA_PARAMS_L(T))
{
    auto* const kernel = contiguous<T>(src1Stride2, src2Stride2, dstStride2) ? contiguousKernel : kernelS2;
    return inTeam<Kernels::cannotFail>(count, [=](const Chunk& chunk) {
        return kernel(pSrc1, src1Stride1, src1Stride2, src1Width, src1Height, ppSrc2 + chunk.first, src2Shift,
                      src2Stride1, src2Stride2, src2Width, src2Height, ppDst + chunk.first, dstShift, dstStride1,
                      dstStride2, chunk.objects);
    });
}

template <class T>
VORM_INLINE VormStatus mmaTeamP(MmaLayerP<T>* kernel, MMA_PARAMS_P(T))
{
    return inTeam<Kernels::cannotFail>(count, [=](const Chunk& chunk) {
        return kernel(ppSrc1, src1Shift, src1Width, src1Height, ppSrc2,
                      wrapAdd(src2Shift, wrapMul(chunk.first, src2Stride0)), src2Stride0, src2Width, src2Height, ppDst,
                      wrapAdd(dstShift, wrapMul(chunk.first, dstStride0)), dstStride0, chunk.objects);
    });
}

// Kernels. ----------------------------------------------------------------------------------------

template <class Kind, Bodies bodies = Bodies::upTo6, class T>
VORM_INLINE VormStatus mmaContiguous(MMA_PARAMS(T))
{
    return contiguousProducts<Kind, bodies, T>(Matrix{pSrc1, src1Stride1, adjacent},
                                               MatrixArray{pSrc2, src2Stride0, src2Stride1, adjacent},
                                               MatrixArray{pDst, dstStride0, dstStride1, adjacent},
                                               Kind::lengths(src1Width, src1Height, src2Width, src2Height), count);
}

template <class Kind, Bodies bodies = Bodies::upTo6, class T>
VORM_INLINE VormStatus mmaContiguousL(MMA_PARAMS_L(T))
{
    return contiguousProducts<Kind, bodies, T>(Matrix{pSrc1, src1Stride1, adjacent},
                                               MatrixList{ppSrc2, src2Shift, src2Stride1, adjacent},
                                               MatrixList{ppDst, dstShift, dstStride1, adjacent},
                                               Kind::lengths(src1Width, src1Height, src2Width, src2Height), count);
}

template <class Kind, class T>
VORM_INLINE VormStatus mmaAnyStride(MMA_PARAMS(T))
{
    return productsAnywhere<T>(Kind::first(Matrix{pSrc1, src1Stride1, src1Stride2}),
                               Kind::second(MatrixArray{pSrc2, src2Stride0, src2Stride1, src2Stride2}),
                               MatrixArray{pDst, dstStride0, dstStride1, dstStride2},
                               Kind::lengths(src1Width, src1Height, src2Width, src2Height), 0, count);
}

// Object by object through the single-object kernel.
template <class T>
VORM_INLINE VormStatus mmaEachSingle(MmLayer<T>* single, MMA_PARAMS_L(T))
{
    const MatrixList src2{ppSrc2, src2Shift, src2Stride1, src2Stride2};
    const MatrixList dst{ppDst, dstShift, dstStride1, dstStride2};
    for (int n = 0; n < count; ++n)
        single(pSrc1, src1Stride1, src1Stride2, src1Width, src1Height, src2.object(n), src2Stride1, src2Stride2,
               src2Width, src2Height, dst.object(n), dstStride1, dstStride2);
    return StatusOk;
}

template <class Kind, Outermost outermost = Outermost::rows, class T>
VORM_INLINE VormStatus mmaPointers(MMA_PARAMS_P(T))
{
    const Lengths lengths = Kind::lengths(src1Width, src1Height, src2Width, src2Height);
    return pointerProducts<T, outermost>(Kind::first(MatrixPointers{ppSrc1, src1Shift, src1Width}),
                                         Kind::second(MatrixArrayPointers{ppSrc2, src2Shift, src2Stride0, src2Width}),
                                         MatrixArrayPointers{ppDst, dstShift, dstStride0, lengths.n}, lengths, count);
}

}  // namespace vorm
