// The mama shape: two arrays of matrices, dst[n] = src1[n] src2[n]. A kind of product reads
// either one transposed and so makes the shapes mata, tama and tata of it.
#pragma once

#include "frame/checks.hpp"
#include "frame/team.hpp"
#include "products/layers.hpp"
#include "products/matrix_kernels.hpp"
#include "products/mm.hpp"

// The operands by layout, in the order and with the names of the exported prototypes.
#define MAMA_PARAMS(T)                                                                                                \
    const T *pSrc1, int src1Stride0, int src1Stride1, int src1Stride2, int src1Width, int src1Height, const T *pSrc2, \
        int src2Stride0, int src2Stride1, int src2Stride2, int src2Width, int src2Height, T *pDst, int dstStride0,    \
        int dstStride1, int dstStride2, int count
#define MAMA_ARGS                                                                                                      \
    pSrc1, src1Stride0, src1Stride1, src1Stride2, src1Width, src1Height, pSrc2, src2Stride0, src2Stride1, src2Stride2, \
        src2Width, src2Height, pDst, dstStride0, dstStride1, dstStride2, count
#define MAMA_PARAMS_L(T)                                                                                        \
    const T *const *ppSrc1, int src1Shift, int src1Stride1, int src1Stride2, int src1Width, int src1Height,     \
        const T *const *ppSrc2, int src2Shift, int src2Stride1, int src2Stride2, int src2Width, int src2Height, \
        T *const *ppDst, int dstShift, int dstStride1, int dstStride2, int count
#define MAMA_ARGS_L                                                                                                  \
    ppSrc1, src1Shift, src1Stride1, src1Stride2, src1Width, src1Height, ppSrc2, src2Shift, src2Stride1, src2Stride2, \
        src2Width, src2Height, ppDst, dstShift, dstStride1, dstStride2, count
#define MAMA_PARAMS_P(T)                                                                                              \
    const T *const *ppSrc1, int src1Shift, int src1Stride0, int src1Width, int src1Height, const T *const *ppSrc2,    \
        int src2Shift, int src2Stride0, int src2Width, int src2Height, T *const *ppDst, int dstShift, int dstStride0, \
        int count
#define MAMA_ARGS_P                                                                                               \
    ppSrc1, src1Shift, src1Stride0, src1Width, src1Height, ppSrc2, src2Shift, src2Stride0, src2Width, src2Height, \
        ppDst, dstShift, dstStride0, count

namespace vorm {

template <class T>
using MamaLayer = VormStatus(MAMA_PARAMS(T));
template <class T>
using MamaLayerL = VormStatus(MAMA_PARAMS_L(T));
template <class T>
using MamaLayerP = VormStatus(MAMA_PARAMS_P(T));

// ((N + K) M + W2 H2) count
template <class Kind>
constexpr int mamaWork(int src1Width, int src1Height, int src2Width, int src2Height, int count)
{
    const Lengths d = Kind::lengths(src1Width, src1Height, src2Width, src2Height);
    return wrapMul(wrapAdd(wrapMul(wrapAdd(d.n, d.k), d.m), wrapMul(src2Width, src2Height)), count);
}

// Public layers. ----------------------------------------------------------------------------------

template <class Kind, int teamLimit, class T>
VORM_INLINE VormStatus mamaChecked(MamaLayer<T>* driver, MamaLayer<T>* kernel, MamaLayer<T>* kernelS2, MAMA_PARAMS(T))
{
    if (anyNull(pSrc1, pSrc2, pDst)) return StatusNullPointer;
    if (count < 1) return StatusBadCount;
    if (anyBelowOne(src1Width, src1Height, src2Width, src2Height)) return StatusBadSize;
    if (!Kind::fits(src1Width, src1Height, src2Width, src2Height)) return StatusSizeMismatch;
    if (anyBadStride<T>(src1Stride0, src1Stride1, src1Stride2, src2Stride0, src2Stride1, src2Stride2, dstStride0,
                        dstStride1, dstStride2))
        return StatusBadStride;

    const int work = mamaWork<Kind>(src1Width, src1Height, src2Width, src2Height, count);
    const bool isContiguous = contiguous<T>(src1Stride2, src2Stride2, dstStride2);
    if (work > (isContiguous ? teamLimit : teamLimitAnyStride)) return driver(MAMA_ARGS);
    if (isContiguous) return kernel(MAMA_ARGS);
    return kernelS2(MAMA_ARGS);
}

template <class Kind, class T>
VORM_INLINE VormStatus mamaCheckedL(MamaLayerL<T>* driver, MamaLayerL<T>* kernel, MamaLayerL<T>* kernelS2,
                                    MAMA_PARAMS_L(T))
{
    if (anyNull(ppSrc1, ppSrc2, ppDst)) return StatusNullPointer;
    if (count < 1) return StatusBadCount;
    if (anyBelowOne(src1Width, src1Height, src2Width, src2Height)) return StatusBadSize;
    if (!Kind::fits(src1Width, src1Height, src2Width, src2Height)) return StatusSizeMismatch;
    if (anyBadStride<T>(src1Stride1, src1Stride2, src2Stride1, src2Stride2, dstStride1, dstStride2))
        return StatusBadStride;
    if (anyBadShift<T>(src1Shift, src2Shift, dstShift)) return StatusBadShift;

    const int work = mamaWork<Kind>(src1Width, src1Height, src2Width, src2Height, count);
    const bool isContiguous = contiguous<T>(src1Stride2, src2Stride2, dstStride2);
    if (work > (isContiguous ? teamLimitList : teamLimitAnyStride)) return driver(MAMA_ARGS_L);
    if (isContiguous) return kernel(MAMA_ARGS_L);
    return kernelS2(MAMA_ARGS_L);
}

template <class Kind, class T>
VORM_INLINE VormStatus mamaCheckedP(MamaLayerP<T>* driver, MamaLayerP<T>* kernel, MAMA_PARAMS_P(T))
{
    if (anyNull(ppSrc1, ppSrc2, ppDst)) return StatusNullPointer;
    if (count < 1) return StatusBadCount;
    if (anyBelowOne(src1Width, src1Height, src2Width, src2Height)) return StatusBadSize;
    if (!Kind::fits(src1Width, src1Height, src2Width, src2Height)) return StatusSizeMismatch;
    if (anyBadStride<T>(src1Stride0, src2Stride0, dstStride0)) return StatusBadStride;
    if (anyBadShift<T>(src1Shift, src2Shift, dstShift)) return StatusBadShift;

    const int work = mamaWork<Kind>(src1Width, src1Height, src2Width, src2Height, count);
    if (work > teamLimitPointers) return driver(MAMA_ARGS_P);
    return kernel(MAMA_ARGS_P);
}

// Drivers. ----------------------------------------------------------------------------------------

template <class T>
VORM_INLINE VormStatus mamaTeam(MamaLayer<T>* contiguousKernel, MamaLayer<T>* kernelS2, MAMA_PARAMS(T))
{
    auto* const kernel = contiguous<T>(src1Stride2, src2Stride2, dstStride2) ? contiguousKernel : kernelS2;
    return inTeam<Kernels::cannotFail>(count, [=](const Chunk& chunk) {
        return kernel(advance(pSrc1, wrapMul(chunk.first, src1Stride0)), src1Stride0, src1Stride1, src1Stride2,
                      src1Width, src1Height, advance(pSrc2, wrapMul(chunk.first, src2Stride0)), src2Stride0,
                      src2Stride1, src2Stride2, src2Width, src2Height, advance(pDst, wrapMul(chunk.first, dstStride0)),
                      dstStride0, dstStride1, dstStride2, chunk.objects);
    });
}

template <class T>
VORM_INLINE VormStatus mamaTeamL(MamaLayerL<T>* contiguousKernel, MamaLayerL<T>* kernelS2, MAMA_PARAMS_L(T))
{
    auto* const kernel = contiguous<T>(src1Stride2, src2Stride2, dstStride2) ? contiguousKernel : kernelS2;
    return inTeam<Kernels::cannotFail>(count, [=](const Chunk& chunk) {
        return kernel(ppSrc1 + chunk.first, src1Shift, src1Stride1, src1Stride2, src1Width, src1Height,
                      ppSrc2 + chunk.first, src2Shift, src2Stride1, src2Stride2, src2Width, src2Height,
                      ppDst + chunk.first, dstShift, dstStride1, dstStride2, chunk.objects);
    });
}

template <class T>
VORM_INLINE VormStatus mamaTeamP(MamaLayerP<T>* kernel, MAMA_PARAMS_P(T))
{
    return inTeam<Kernels::cannotFail>(count, [=](const Chunk& chunk) {
        return kernel(ppSrc1, wrapAdd(src1Shift, wrapMul(chunk.first, src1Stride0)), src1Stride0, src1Width, src1Height,
                      ppSrc2, wrapAdd(src2Shift, wrapMul(chunk.first, src2Stride0)), src2Stride0, src2Width, src2Height,
                      ppDst, wrapAdd(dstShift, wrapMul(chunk.first, dstStride0)), dstStride0, chunk.objects);
    });
}

// Kernels. ----------------------------------------------------------------------------------------

template <class Kind, Bodies bodies = Bodies::upTo6, class T>
VORM_INLINE VormStatus mamaContiguous(MAMA_PARAMS(T))
{
    return contiguousProducts<Kind, bodies, T>(MatrixArray{pSrc1, src1Stride0, src1Stride1, adjacent},
                                               MatrixArray{pSrc2, src2Stride0, src2Stride1, adjacent},
                                               MatrixArray{pDst, dstStride0, dstStride1, adjacent},
                                               Kind::lengths(src1Width, src1Height, src2Width, src2Height), count);
}

template <class Kind, Bodies bodies = Bodies::upTo6, class T>
VORM_INLINE VormStatus mamaContiguousL(MAMA_PARAMS_L(T))
{
    return contiguousProducts<Kind, bodies, T>(MatrixList{ppSrc1, src1Shift, src1Stride1, adjacent},
                                               MatrixList{ppSrc2, src2Shift, src2Stride1, adjacent},
                                               MatrixList{ppDst, dstShift, dstStride1, adjacent},
                                               Kind::lengths(src1Width, src1Height, src2Width, src2Height), count);
}

template <class Kind, class T>
VORM_INLINE VormStatus mamaAnyStride(MAMA_PARAMS(T))
{
    return productsAnywhere<T>(Kind::first(MatrixArray{pSrc1, src1Stride0, src1Stride1, src1Stride2}),
                               Kind::second(MatrixArray{pSrc2, src2Stride0, src2Stride1, src2Stride2}),
                               MatrixArray{pDst, dstStride0, dstStride1, dstStride2},
                               Kind::lengths(src1Width, src1Height, src2Width, src2Height), 0, count);
}

// Object by object through the single-object kernel.
template <class T>
VORM_INLINE VormStatus mamaEachSingle(MmLayer<T>* single, MAMA_PARAMS_L(T))
{
    const MatrixList src1{ppSrc1, src1Shift, src1Stride1, src1Stride2};
    const MatrixList src2{ppSrc2, src2Shift, src2Stride1, src2Stride2};
    const MatrixList dst{ppDst, dstShift, dstStride1, dstStride2};
    for (int n = 0; n < count; ++n)
        single(src1.object(n), src1Stride1, src1Stride2, src1Width, src1Height, src2.object(n), src2Stride1,
               src2Stride2, src2Width, src2Height, dst.object(n), dstStride1, dstStride2);
    return StatusOk;
}

template <class Kind, Outermost outermost = Outermost::rows, class T>
VORM_INLINE VormStatus mamaPointers(MAMA_PARAMS_P(T))
{
    const Lengths lengths = Kind::lengths(src1Width, src1Height, src2Width, src2Height);
    return pointerProducts<T, outermost>(Kind::first(MatrixArrayPointers{ppSrc1, src1Shift, src1Stride0, src1Width}),
                                         Kind::second(MatrixArrayPointers{ppSrc2, src2Shift, src2Stride0, src2Width}),
                                         MatrixArrayPointers{ppDst, dstShift, dstStride0, lengths.n}, lengths, count);
}

}  // namespace vorm
