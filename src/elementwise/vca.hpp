// The vca shape, one common vector and an array of constants, dst[n][i] = src[i] op val[n]; and cav,
// the same with the operation turned round, dst[n][i] = val[n] - src[i].
#pragma once

#include "elementwise/kernels.hpp"
#include "elementwise/layers.hpp"
#include "frame/checks.hpp"
#include "frame/team.hpp"

// The operands by layout, in the order and with the names of the exported prototypes.
#define VCA_PARAMS(T)                                                                                               \
    const T *pSrc, int srcStride2, const T *pVal, int valStride0, T *pDst, int dstStride0, int dstStride2, int len, \
        int count
#define VCA_ARGS pSrc, srcStride2, pVal, valStride0, pDst, dstStride0, dstStride2, len, count
#define VCA_PARAMS_L(T)                                                                                                \
    const T *pSrc, int srcStride2, const T *const *ppVal, int valShift, T *const *ppDst, int dstShift, int dstStride2, \
        int len, int count
#define VCA_ARGS_L pSrc, srcStride2, ppVal, valShift, ppDst, dstShift, dstStride2, len, count
#define VCA_PARAMS_P(T)                                                                                                \
    const T *const *ppSrc, int srcShift, const T *pVal, int valStride0, T *const *ppDst, int dstShift, int dstStride0, \
        int len, int count
#define VCA_ARGS_P ppSrc, srcShift, pVal, valStride0, ppDst, dstShift, dstStride0, len, count

namespace vorm {

template <class T>
using VcaLayer = VormStatus(VCA_PARAMS(T));
template <class T>
using VcaLayerL = VormStatus(VCA_PARAMS_L(T));
template <class T>
using VcaLayerP = VormStatus(VCA_PARAMS_P(T));

// len count + len + count
constexpr int vcaWork(int len, int count) { return wrapAdd(wrapMul(len, count), len, count); }

// Public layers. ----------------------------------------------------------------------------------

template <int teamLimit, class T>
VORM_INLINE VormStatus vcaChecked(VcaLayer<T>* driver, VcaLayer<T>* kernel, VcaLayer<T>* kernelS2, VCA_PARAMS(T))
{
    if (anyNull(pSrc, pVal, pDst)) return StatusNullPointer;
    if (count < 1) return StatusBadCount;
    if (len < 1) return StatusBadSize;
    if (anyBadStride<T>(srcStride2, valStride0, dstStride0, dstStride2)) return StatusBadStride;

    if (vcaWork(len, count) > teamLimit) return driver(VCA_ARGS);
    if (contiguous<T>(srcStride2, dstStride2)) return kernel(VCA_ARGS);
    return kernelS2(VCA_ARGS);
}

template <int teamLimit, class T>
VORM_INLINE VormStatus vcaCheckedL(VcaLayerL<T>* driver, VcaLayerL<T>* kernel, VcaLayerL<T>* kernelS2, VCA_PARAMS_L(T))
{
    if (anyNull(pSrc, ppVal, ppDst)) return StatusNullPointer;
    if (count < 1) return StatusBadCount;
    if (len < 1) return StatusBadSize;
    if (anyBadStride<T>(srcStride2, dstStride2)) return StatusBadStride;
    if (anyBadShift<T>(valShift, dstShift)) return StatusBadShift;

    if (vcaWork(len, count) > teamLimit) return driver(VCA_ARGS_L);
    if (contiguous<T>(srcStride2, dstStride2)) return kernel(VCA_ARGS_L);
    return kernelS2(VCA_ARGS_L);
}

template <int teamLimit, Untested untested = Untested::none, class T>
VORM_INLINE VormStatus vcaCheckedP(VcaLayerP<T>* driver, VcaLayerP<T>* kernel, VCA_PARAMS_P(T))
{
    if (anyNull(ppSrc, pVal, ppDst)) return StatusNullPointer;
    if (count < 1) return StatusBadCount;
    if (len < 1) return StatusBadSize;
    if (anyBadStride<T>(valStride0, dstStride0)) return StatusBadStride;
    if (untested != Untested::shifts && anyBadShift<T>(srcShift, dstShift)) return StatusBadShift;

    if (vcaWork(len, count) > teamLimit) return driver(VCA_ARGS_P);
    return kernel(VCA_ARGS_P);
}

// Drivers. ----------------------------------------------------------------------------------------

template <class T>
VORM_INLINE VormStatus vcaTeam(VcaLayer<T>* contiguousKernel, VcaLayer<T>* kernelS2, VCA_PARAMS(T))
{
    auto* const kernel = contiguous<T>(srcStride2, dstStride2) ? contiguousKernel : kernelS2;
    return inTeam<Kernels::cannotFail>(count, [=](const Chunk& chunk) {
        return kernel(pSrc, srcStride2, advance(pVal, wrapMul(chunk.first, valStride0)), valStride0,
                      advance(pDst, wrapMul(chunk.first, dstStride0)), dstStride0, dstStride2, len, chunk.objects);
    });
}

template <class T>
VORM_INLINE VormStatus vcaTeamL(VcaLayerL<T>* contiguousKernel, VcaLayerL<T>* kernelS2, VCA_PARAMS_L(T))
{
    auto* const kernel = contiguous<T>(srcStride2, dstStride2) ? contiguousKernel : kernelS2;
    return inTeam<Kernels::cannotFail>(count, [=](const Chunk& chunk) {
        return kernel(pSrc, srcStride2, ppVal + chunk.first, valShift, ppDst + chunk.first, dstShift, dstStride2, len,
                      chunk.objects);
    });
}

template <class T>
VORM_INLINE VormStatus vcaTeamP(VcaLayerP<T>* kernel, VCA_PARAMS_P(T))
{
    return inTeam<Kernels::cannotFail>(count, [=](const Chunk& chunk) {
        return kernel(ppSrc, srcShift, advance(pVal, wrapMul(chunk.first, valStride0)), valStride0, ppDst,
                      wrapAdd(dstShift, wrapMul(chunk.first, dstStride0)), dstStride0, len, chunk.objects);
    });
}

// Kernels. ----------------------------------------------------------------------------------------

template <class Op, class T>
VORM_INLINE VormStatus vcaContiguous(VCA_PARAMS(T))
{
    return contiguousObjects<Op>(Vector{pSrc, adjacent}, ConstantArray{pVal, valStride0},
                                 VectorArray{pDst, dstStride0, adjacent}, len, count);
}

template <class Op, class T>
VORM_INLINE VormStatus vcaContiguousL(VCA_PARAMS_L(T))
{
    return contiguousObjects<Op>(Vector{pSrc, adjacent}, ConstantList{ppVal, valShift},
                                 VectorList{ppDst, dstShift, adjacent}, len, count);
}

template <class Op, class T>
VORM_INLINE VormStatus vcaAnyStride(VCA_PARAMS(T))
{
    return anyStride<Op>(Vector{pSrc, srcStride2}, ConstantArray{pVal, valStride0},
                         VectorArray{pDst, dstStride0, dstStride2}, len, count);
}

template <class Op, class T>
VORM_INLINE VormStatus vcaAnyStrideL(VCA_PARAMS_L(T))
{
    return anyStride<Op>(Vector{pSrc, srcStride2}, ConstantList{ppVal, valShift},
                         VectorList{ppDst, dstShift, dstStride2}, len, count);
}

template <class Op, class T>
VORM_INLINE VormStatus vcaPointers(VCA_PARAMS_P(T))
{
    return pointerObjects<Op>(VectorPointers{ppSrc, srcShift}, ConstantArray{pVal, valStride0},
                              VectorArrayPointers{ppDst, dstShift, dstStride0}, len, count);
}

}  // namespace vorm
