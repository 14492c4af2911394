// The vav shape: every vector of an array with one common vector,
// dst[n][i] = src1[n][i] op src2[i].
#pragma once

#include "elementwise/kernels.hpp"
#include "elementwise/layers.hpp"
#include "elementwise/vv.hpp"
#include "frame/checks.hpp"
#include "frame/team.hpp"

// The operands by layout, in the order and with the names of the exported prototypes.
#define VAV_PARAMS(T)                                                                                           \
    const T *pSrc1, int src1Stride0, int src1Stride2, const T *pSrc2, int src2Stride2, T *pDst, int dstStride0, \
        int dstStride2, int len, int count
#define VAV_ARGS pSrc1, src1Stride0, src1Stride2, pSrc2, src2Stride2, pDst, dstStride0, dstStride2, len, count
#define VAV_PARAMS_L(T)                                                                                       \
    const T *const *ppSrc1, int src1Shift, int src1Stride2, const T *pSrc2, int src2Stride2, T *const *ppDst, \
        int dstShift, int dstStride2, int len, int count
#define VAV_ARGS_L ppSrc1, src1Shift, src1Stride2, pSrc2, src2Stride2, ppDst, dstShift, dstStride2, len, count
#define VAV_PARAMS_P(T)                                                                                             \
    const T *const *ppSrc1, int src1Shift, int src1Stride0, const T *const *ppSrc2, int src2Shift, T *const *ppDst, \
        int dstShift, int dstStride0, int len, int count
#define VAV_ARGS_P ppSrc1, src1Shift, src1Stride0, ppSrc2, src2Shift, ppDst, dstShift, dstStride0, len, count

namespace vorm {

template <class T>
using VavLayer = VormStatus(VAV_PARAMS(T));
template <class T>
using VavLayerL = VormStatus(VAV_PARAMS_L(T));
template <class T>
using VavLayerP = VormStatus(VAV_PARAMS_P(T));

// (2 count + 1) len
constexpr int vavWork(int len, int count) { return wrapMul(wrapAdd(wrapMul(2, count), 1), len); }

// Public layers. Unlike the other array shapes, vav tests the strides before the count. -----------

template <int teamLimit, class T>
VORM_INLINE VormStatus vavChecked(VavLayer<T>* driver, VavLayer<T>* kernel, VavLayer<T>* kernelS2, VAV_PARAMS(T))
{
    if (anyNull(pSrc1, pSrc2, pDst)) return StatusNullPointer;
    if (len < 1) return StatusBadSize;
    if (anyBadStride<T>(src1Stride0, src1Stride2, src2Stride2, dstStride0, dstStride2)) return StatusBadStride;
    if (count < 1) return StatusBadCount;

    if (vavWork(len, count) > teamLimit) return driver(VAV_ARGS);
    if (contiguous<T>(src1Stride2, src2Stride2, dstStride2)) return kernel(VAV_ARGS);
    return kernelS2(VAV_ARGS);
}

template <int teamLimit, class T>
VORM_INLINE VormStatus vavCheckedL(VavLayerL<T>* driver, VavLayerL<T>* kernel, VavLayerL<T>* kernelS2, VAV_PARAMS_L(T))
{
    if (anyNull(ppSrc1, pSrc2, ppDst)) return StatusNullPointer;
    if (len < 1) return StatusBadSize;
    if (anyBadStride<T>(src1Stride2, src2Stride2, dstStride2)) return StatusBadStride;
    if (anyBadShift<T>(src1Shift, dstShift)) return StatusBadShift;
    if (count < 1) return StatusBadCount;

    if (vavWork(len, count) > teamLimit) return driver(VAV_ARGS_L);
    if (contiguous<T>(src1Stride2, src2Stride2, dstStride2)) return kernel(VAV_ARGS_L);
    return kernelS2(VAV_ARGS_L);
}

template <int teamLimit, class T>
VORM_INLINE VormStatus vavCheckedP(VavLayerP<T>* driver, VavLayerP<T>* kernel, VAV_PARAMS_P(T))
{
    if (anyNull(ppSrc1, ppSrc2, ppDst)) return StatusNullPointer;
    if (len < 1) return StatusBadSize;
    if (anyBadStride<T>(src1Stride0, dstStride0)) return StatusBadStride;
    if (count < 1) return StatusBadCount;
    if (anyBadShift<T>(src1Shift, src2Shift, dstShift)) return StatusBadShift;

    if (vavWork(len, count) > teamLimit) return driver(VAV_ARGS_P);
    return kernel(VAV_ARGS_P);
}

// Drivers. ----------------------------------------------------------------------------------------

template <class T>
VORM_INLINE VormStatus vavTeam(VavLayer<T>* contiguousKernel, VavLayer<T>* kernelS2, VAV_PARAMS(T))
{
    auto* const kernel = contiguous<T>(src1Stride2, src2Stride2, dstStride2) ? contiguousKernel : kernelS2;
    return inTeam<Kernels::cannotFail>(count, [=](const Chunk& chunk) {
        return kernel(advance(pSrc1, wrapMul(chunk.first, src1Stride0)), src1Stride0, src1Stride2, pSrc2, src2Stride2,
                      advance(pDst, wrapMul(chunk.first, dstStride0)), dstStride0, dstStride2, len, chunk.objects);
    });
}

template <class T>
VORM_INLINE VormStatus vavTeamL(VavLayerL<T>* contiguousKernel, VavLayerL<T>* kernelS2, VAV_PARAMS_L(T))
{
    auto* const kernel = contiguous<T>(src1Stride2, src2Stride2, dstStride2) ? contiguousKernel : kernelS2;
    return inTeam<Kernels::cannotFail>(count, [=](const Chunk& chunk) {
        return kernel(ppSrc1 + chunk.first, src1Shift, src1Stride2, pSrc2, src2Stride2, ppDst + chunk.first, dstShift,
                      dstStride2, len, chunk.objects);
    });
}

template <class T>
VORM_INLINE VormStatus vavTeamP(VavLayerP<T>* kernel, VAV_PARAMS_P(T))
{
    return inTeam<Kernels::cannotFail>(count, [=](const Chunk& chunk) {
        return kernel(ppSrc1, wrapAdd(src1Shift, wrapMul(chunk.first, src1Stride0)), src1Stride0, ppSrc2, src2Shift,
                      ppDst, wrapAdd(dstShift, wrapMul(chunk.first, dstStride0)), dstStride0, len, chunk.objects);
    });
}

// Kernels. ----------------------------------------------------------------------------------------

template <class Op, class T>
VORM_INLINE VormStatus vavContiguous(VAV_PARAMS(T))
{
    return contiguousObjects<Op>(VectorArray{pSrc1, src1Stride0, adjacent}, Vector{pSrc2, adjacent},
                                 VectorArray{pDst, dstStride0, adjacent}, len, count);
}

template <class Op, class T>
VORM_INLINE VormStatus vavContiguousL(VAV_PARAMS_L(T))
{
    return contiguousObjects<Op>(VectorList{ppSrc1, src1Shift, adjacent}, Vector{pSrc2, adjacent},
                                 VectorList{ppDst, dstShift, adjacent}, len, count);
}

template <class Op, class T>
VORM_INLINE VormStatus vavAnyStride(VAV_PARAMS(T))
{
    return anyStride<Op>(VectorArray{pSrc1, src1Stride0, src1Stride2}, Vector{pSrc2, src2Stride2},
                         VectorArray{pDst, dstStride0, dstStride2}, len, count);
}

// Object by object through the single-object kernel.
template <class T>
VORM_INLINE VormStatus vavEachSingle(VvLayer<T>* single, VAV_PARAMS_L(T))
{
    const VectorList src1{ppSrc1, src1Shift, src1Stride2};
    const VectorList dst{ppDst, dstShift, dstStride2};
    for (int n = 0; n < count; ++n)
        single(src1.object(n), src1Stride2, pSrc2, src2Stride2, dst.object(n), dstStride2, len);
    return StatusOk;
}

template <class Op, class T>
VORM_INLINE VormStatus vavPointers(VAV_PARAMS_P(T))
{
    return pointerObjects<Op>(VectorArrayPointers{ppSrc1, src1Shift, src1Stride0}, VectorPointers{ppSrc2, src2Shift},
                              VectorArrayPointers{ppDst, dstShift, dstStride0}, len, count);
}

}  // namespace vorm
