// The vva shape: one common vector with every vector of an array,
// dst[n][i] = src1[i] op src2[n][i].
#pragma once

#include "elementwise/kernels.hpp"
#include "elementwise/layers.hpp"
#include "elementwise/vv.hpp"
#include "frame/checks.hpp"
#include "frame/team.hpp"

// The operands by layout, in the order and with the names of the exported prototypes.
#define VVA_PARAMS(T)                                                                                           \
    const T *pSrc1, int src1Stride2, const T *pSrc2, int src2Stride0, int src2Stride2, T *pDst, int dstStride0, \
        int dstStride2, int len, int count
#define VVA_ARGS pSrc1, src1Stride2, pSrc2, src2Stride0, src2Stride2, pDst, dstStride0, dstStride2, len, count
#define VVA_PARAMS_L(T)                                                                                       \
    const T *pSrc1, int src1Stride2, const T *const *ppSrc2, int src2Shift, int src2Stride2, T *const *ppDst, \
        int dstShift, int dstStride2, int len, int count
#define VVA_ARGS_L pSrc1, src1Stride2, ppSrc2, src2Shift, src2Stride2, ppDst, dstShift, dstStride2, len, count
#define VVA_PARAMS_P(T)                                                                                             \
    const T *const *ppSrc1, int src1Shift, const T *const *ppSrc2, int src2Shift, int src2Stride0, T *const *ppDst, \
        int dstShift, int dstStride0, int len, int count
#define VVA_ARGS_P ppSrc1, src1Shift, ppSrc2, src2Shift, src2Stride0, ppDst, dstShift, dstStride0, len, count

namespace vorm {

template <class T>
using VvaLayer = VormStatus(VVA_PARAMS(T));
template <class T>
using VvaLayerL = VormStatus(VVA_PARAMS_L(T));
template <class T>
using VvaLayerP = VormStatus(VVA_PARAMS_P(T));

// (2 count + 1) len
constexpr int vvaWork(int len, int count) { return wrapMul(wrapAdd(wrapMul(2, count), 1), len); }

// Public layers. ----------------------------------------------------------------------------------

template <int teamLimit, class T>
VORM_INLINE VormStatus vvaChecked(VvaLayer<T>* driver, VvaLayer<T>* kernel, VvaLayer<T>* kernelS2, VVA_PARAMS(T))
{
    if (anyNull(pSrc1, pSrc2, pDst)) return StatusNullPointer;
    if (count < 1) return StatusBadCount;
    if (len < 1) return StatusBadSize;
    if (anyBadStride<T>(src1Stride2, src2Stride0, src2Stride2, dstStride0, dstStride2)) return StatusBadStride;

    if (vvaWork(len, count) > teamLimit) return driver(VVA_ARGS);
    if (contiguous<T>(src1Stride2, src2Stride2, dstStride2)) return kernel(VVA_ARGS);
    return kernelS2(VVA_ARGS);
}

template <int teamLimit, class T>
VORM_INLINE VormStatus vvaCheckedL(VvaLayerL<T>* driver, VvaLayerL<T>* kernel, VvaLayerL<T>* kernelS2, VVA_PARAMS_L(T))
{
    if (anyNull(pSrc1, ppSrc2, ppDst)) return StatusNullPointer;
    if (count < 1) return StatusBadCount;
    if (len < 1) return StatusBadSize;
    if (anyBadStride<T>(src1Stride2, src2Stride2, dstStride2)) return StatusBadStride;
    if (anyBadShift<T>(src2Shift, dstShift)) return StatusBadShift;

    if (vvaWork(len, count) > teamLimit) return driver(VVA_ARGS_L);
    if (contiguous<T>(src1Stride2, src2Stride2, dstStride2)) return kernel(VVA_ARGS_L);
    return kernelS2(VVA_ARGS_L);
}

template <int teamLimit, class T>
VORM_INLINE VormStatus vvaCheckedP(VvaLayerP<T>* driver, VvaLayerP<T>* kernel, VVA_PARAMS_P(T))
{
    if (anyNull(ppSrc1, ppSrc2, ppDst)) return StatusNullPointer;
    if (count < 1) return StatusBadCount;
    if (len < 1) return StatusBadSize;
    if (anyBadStride<T>(src2Stride0, dstStride0)) return StatusBadStride;
    if (anyBadShift<T>(src1Shift, src2Shift, dstShift)) return StatusBadShift;

    if (vvaWork(len, count) > teamLimit) return driver(VVA_ARGS_P);
    return kernel(VVA_ARGS_P);
}

// Drivers. ----------------------------------------------------------------------------------------

template <class T>
VORM_INLINE VormStatus vvaTeam(VvaLayer<T>* contiguousKernel, VvaLayer<T>* kernelS2, VVA_PARAMS(T))
{
    auto* const kernel = contiguous<T>(src1Stride2, src2Stride2, dstStride2) ? contiguousKernel : kernelS2;
    return inTeam<Kernels::cannotFail>(count, [=](const Chunk& chunk) {
        return kernel(pSrc1, src1Stride2, advance(pSrc2, wrapMul(chunk.first, src2Stride0)), src2Stride0, src2Stride2,
                      advance(pDst, wrapMul(chunk.first, dstStride0)), dstStride0, dstStride2, len, chunk.objects);
    });
}

template <class T>
VORM_INLINE VormStatus vvaTeamL(VvaLayerL<T>* contiguousKernel, VvaLayerL<T>* kernelS2, VVA_PARAMS_L(T))
{
    auto* const kernel = contiguous<T>(src1Stride2, src2Stride2, dstStride2) ? contiguousKernel : kernelS2;
    return inTeam<Kernels::cannotFail>(count, [=](const Chunk& chunk) {
        return kernel(pSrc1, src1Stride2, ppSrc2 + chunk.first, src2Shift, src2Stride2, ppDst + chunk.first, dstShift,
                      dstStride2, len, chunk.objects);
    });
}

template <class T>
VORM_INLINE VormStatus vvaTeamP(VvaLayerP<T>* kernel, VVA_PARAMS_P(T))
{
    return inTeam<Kernels::cannotFail>(count, [=](const Chunk& chunk) {
        return kernel(ppSrc1, src1Shift, ppSrc2, wrapAdd(src2Shift, wrapMul(chunk.first, src2Stride0)), src2Stride0,
                      ppDst, wrapAdd(dstShift, wrapMul(chunk.first, dstStride0)), dstStride0, len, chunk.objects);
    });
}

// Kernels. ----------------------------------------------------------------------------------------

template <class Op, class T>
VORM_INLINE VormStatus vvaContiguous(VVA_PARAMS(T))
{
    return contiguousObjects<Op>(Vector{pSrc1, adjacent}, VectorArray{pSrc2, src2Stride0, adjacent},
                                 VectorArray{pDst, dstStride0, adjacent}, len, count);
}

template <class Op, class T>
VORM_INLINE VormStatus vvaContiguousL(VVA_PARAMS_L(T))
{
    return contiguousObjects<Op>(Vector{pSrc1, adjacent}, VectorList{ppSrc2, src2Shift, adjacent},
                                 VectorList{ppDst, dstShift, adjacent}, len, count);
}

template <class Op, class T>
VORM_INLINE VormStatus vvaAnyStride(VVA_PARAMS(T))
{
    return anyStride<Op>(Vector{pSrc1, src1Stride2}, VectorArray{pSrc2, src2Stride0, src2Stride2},
                         VectorArray{pDst, dstStride0, dstStride2}, len, count);
}

// Object by object through the single-object kernel.
template <class T>
VORM_INLINE VormStatus vvaEachSingle(VvLayer<T>* single, VVA_PARAMS_L(T))
{
    const VectorList src2{ppSrc2, src2Shift, src2Stride2};
    const VectorList dst{ppDst, dstShift, dstStride2};
    for (int n = 0; n < count; ++n)
        single(pSrc1, src1Stride2, src2.object(n), src2Stride2, dst.object(n), dstStride2, len);
    return StatusOk;
}

template <class Op, class T>
VORM_INLINE VormStatus vvaPointers(VVA_PARAMS_P(T))
{
    return pointerObjects<Op>(VectorPointers{ppSrc1, src1Shift}, VectorArrayPointers{ppSrc2, src2Shift, src2Stride0},
                              VectorArrayPointers{ppDst, dstShift, dstStride0}, len, count);
}

}  // namespace vorm
