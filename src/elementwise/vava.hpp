// The vava shape: two arrays of vectors, dst[n][i] = src1[n][i] op src2[n][i].
#pragma once

#include "elementwise/kernels.hpp"
#include "elementwise/layers.hpp"
#include "elementwise/vv.hpp"
#include "frame/checks.hpp"
#include "frame/team.hpp"

// The operands by layout, in the order and with the names of the exported prototypes.
#define VAVA_PARAMS(T)                                                                                           \
    const T *pSrc1, int src1Stride0, int src1Stride2, const T *pSrc2, int src2Stride0, int src2Stride2, T *pDst, \
        int dstStride0, int dstStride2, int len, int count
#define VAVA_ARGS \
    pSrc1, src1Stride0, src1Stride2, pSrc2, src2Stride0, src2Stride2, pDst, dstStride0, dstStride2, len, count
#define VAVA_PARAMS_L(T)                                                                                            \
    const T *const *ppSrc1, int src1Shift, int src1Stride2, const T *const *ppSrc2, int src2Shift, int src2Stride2, \
        T *const *ppDst, int dstShift, int dstStride2, int len, int count
#define VAVA_ARGS_L \
    ppSrc1, src1Shift, src1Stride2, ppSrc2, src2Shift, src2Stride2, ppDst, dstShift, dstStride2, len, count
#define VAVA_PARAMS_P(T)                                                                                            \
    const T *const *ppSrc1, int src1Shift, int src1Stride0, const T *const *ppSrc2, int src2Shift, int src2Stride0, \
        T *const *ppDst, int dstShift, int dstStride0, int len, int count
#define VAVA_ARGS_P \
    ppSrc1, src1Shift, src1Stride0, ppSrc2, src2Shift, src2Stride0, ppDst, dstShift, dstStride0, len, count

namespace vorm {

template <class T>
using VavaLayer = VormStatus(VAVA_PARAMS(T));
template <class T>
using VavaLayerL = VormStatus(VAVA_PARAMS_L(T));
template <class T>
using VavaLayerP = VormStatus(VAVA_PARAMS_P(T));

// 3 count len
constexpr int vavaWork(int len, int count) { return wrapMul(3, count, len); }

// Public layers. ----------------------------------------------------------------------------------

template <int teamLimit, class T>
VORM_INLINE VormStatus vavaChecked(VavaLayer<T>* driver, VavaLayer<T>* kernel, VavaLayer<T>* kernelS2, VAVA_PARAMS(T))
{
    if (anyNull(pSrc1, pSrc2, pDst)) return StatusNullPointer;
    if (count < 1) return StatusBadCount;
    if (len < 1) return StatusBadSize;
    if (anyBadStride<T>(src1Stride0, src1Stride2, src2Stride0, src2Stride2, dstStride0, dstStride2))
        return StatusBadStride;

    if (vavaWork(len, count) > teamLimit) return driver(VAVA_ARGS);
    if (contiguous<T>(src1Stride2, src2Stride2, dstStride2)) return kernel(VAVA_ARGS);
    return kernelS2(VAVA_ARGS);
}

template <int teamLimit, class T>
VORM_INLINE VormStatus vavaCheckedL(VavaLayerL<T>* driver, VavaLayerL<T>* kernel, VavaLayerL<T>* kernelS2,
                                    VAVA_PARAMS_L(T))
{
    if (anyNull(ppSrc1, ppSrc2, ppDst)) return StatusNullPointer;
    if (count < 1) return StatusBadCount;
    if (len < 1) return StatusBadSize;
    if (anyBadStride<T>(src1Stride2, src2Stride2, dstStride2)) return StatusBadStride;
    if (anyBadShift<T>(src1Shift, src2Shift, dstShift)) return StatusBadShift;

    if (vavaWork(len, count) > teamLimit) return driver(VAVA_ARGS_L);
    if (contiguous<T>(src1Stride2, src2Stride2, dstStride2)) return kernel(VAVA_ARGS_L);
    return kernelS2(VAVA_ARGS_L);
}

template <int teamLimit, class T>
VORM_INLINE VormStatus vavaCheckedP(VavaLayerP<T>* driver, VavaLayerP<T>* kernel, VAVA_PARAMS_P(T))
{
    if (anyNull(ppSrc1, ppSrc2, ppDst)) return StatusNullPointer;
    if (count < 1) return StatusBadCount;
    if (len < 1) return StatusBadSize;
    if (anyBadStride<T>(src1Stride0, src2Stride0, dstStride0)) return StatusBadStride;
    if (anyBadShift<T>(src1Shift, src2Shift, dstShift)) return StatusBadShift;

    if (vavaWork(len, count) > teamLimit) return driver(VAVA_ARGS_P);
    return kernel(VAVA_ARGS_P);
}

// Drivers. ----------------------------------------------------------------------------------------

template <class T>
VORM_INLINE VormStatus vavaTeam(VavaLayer<T>* contiguousKernel, VavaLayer<T>* kernelS2, VAVA_PARAMS(T))
{
    auto* const kernel = contiguous<T>(src1Stride2, src2Stride2, dstStride2) ? contiguousKernel : kernelS2;
    return inTeam<Kernels::cannotFail>(count, [=](const Chunk& chunk) {
        return kernel(advance(pSrc1, wrapMul(chunk.first, src1Stride0)), src1Stride0, src1Stride2,
                      advance(pSrc2, wrapMul(chunk.first, src2Stride0)), src2Stride0, src2Stride2,
                      advance(pDst, wrapMul(chunk.first, dstStride0)), dstStride0, dstStride2, len, chunk.objects);
    });
}

template <class T>
VORM_INLINE VormStatus vavaTeamL(VavaLayerL<T>* contiguousKernel, VavaLayerL<T>* kernelS2, VAVA_PARAMS_L(T))
{
    auto* const kernel = contiguous<T>(src1Stride2, src2Stride2, dstStride2) ? contiguousKernel : kernelS2;
    return inTeam<Kernels::cannotFail>(count, [=](const Chunk& chunk) {
        return kernel(ppSrc1 + chunk.first, src1Shift, src1Stride2, ppSrc2 + chunk.first, src2Shift, src2Stride2,
                      ppDst + chunk.first, dstShift, dstStride2, len, chunk.objects);
    });
}

template <class T>
VORM_INLINE VormStatus vavaTeamP(VavaLayerP<T>* kernel, VAVA_PARAMS_P(T))
{
    return inTeam<Kernels::cannotFail>(count, [=](const Chunk& chunk) {
        return kernel(ppSrc1, wrapAdd(src1Shift, wrapMul(chunk.first, src1Stride0)), src1Stride0, ppSrc2,
                      wrapAdd(src2Shift, wrapMul(chunk.first, src2Stride0)), src2Stride0, ppDst,
                      wrapAdd(dstShift, wrapMul(chunk.first, dstStride0)), dstStride0, len, chunk.objects);
    });
}

// Kernels. ----------------------------------------------------------------------------------------

template <class Op, class T>
VORM_INLINE VormStatus vavaContiguous(VAVA_PARAMS(T))
{
    return contiguousObjects<Op>(VectorArray{pSrc1, src1Stride0, adjacent}, VectorArray{pSrc2, src2Stride0, adjacent},
                                 VectorArray{pDst, dstStride0, adjacent}, len, count);
}

template <class Op, class T>
VORM_INLINE VormStatus vavaContiguousL(VAVA_PARAMS_L(T))
{
    return contiguousObjects<Op>(VectorList{ppSrc1, src1Shift, adjacent}, VectorList{ppSrc2, src2Shift, adjacent},
                                 VectorList{ppDst, dstShift, adjacent}, len, count);
}

template <class Op, class T>
VORM_INLINE VormStatus vavaAnyStride(VAVA_PARAMS(T))
{
    return anyStride<Op>(VectorArray{pSrc1, src1Stride0, src1Stride2}, VectorArray{pSrc2, src2Stride0, src2Stride2},
                         VectorArray{pDst, dstStride0, dstStride2}, len, count);
}

// Object by object through the single-object kernel.
template <class T>
VORM_INLINE VormStatus vavaEachSingle(VvLayer<T>* single, VAVA_PARAMS_L(T))
{
    const VectorList src1{ppSrc1, src1Shift, src1Stride2};
    const VectorList src2{ppSrc2, src2Shift, src2Stride2};
    const VectorList dst{ppDst, dstShift, dstStride2};
    for (int n = 0; n < count; ++n)
        single(src1.object(n), src1Stride2, src2.object(n), src2Stride2, dst.object(n), dstStride2, len);
    return StatusOk;
}

template <class Op, class T>
VORM_INLINE VormStatus vavaPointers(VAVA_PARAMS_P(T))
{
    return pointerObjects<Op>(VectorArrayPointers{ppSrc1, src1Shift, src1Stride0},
                              VectorArrayPointers{ppSrc2, src2Shift, src2Stride0},
                              VectorArrayPointers{ppDst, dstShift, dstStride0}, len, count);
}

}  // namespace vorm
