// The vaca shape, an array of vectors with one constant for each, dst[n][i] = src[n][i] op val[n];
// and cava, the same with the operation turned round, dst[n][i] = val[n] - src[n][i].
#pragma once

#include "elementwise/kernels.hpp"
#include "elementwise/layers.hpp"
#include "frame/checks.hpp"
#include "frame/team.hpp"

// The operands by layout, in the order and with the names of the exported prototypes.
#define VACA_PARAMS(T)                                                                                     \
    const T *pSrc, int srcStride0, int srcStride2, const T *pVal, int valStride0, T *pDst, int dstStride0, \
        int dstStride2, int len, int count
#define VACA_ARGS pSrc, srcStride0, srcStride2, pVal, valStride0, pDst, dstStride0, dstStride2, len, count
#define VACA_PARAMS_L(T)                                                                                       \
    const T *const *ppSrc, int srcShift, int srcStride2, const T *const *ppVal, int valShift, T *const *ppDst, \
        int dstShift, int dstStride2, int len, int count
#define VACA_ARGS_L ppSrc, srcShift, srcStride2, ppVal, valShift, ppDst, dstShift, dstStride2, len, count
#define VACA_PARAMS_P(T)                                                                                               \
    const T *const *ppSrc, int srcShift, int srcStride0, const T *pVal, int valStride0, T *const *ppDst, int dstShift, \
        int dstStride0, int len, int count
#define VACA_ARGS_P ppSrc, srcShift, srcStride0, pVal, valStride0, ppDst, dstShift, dstStride0, len, count

namespace vorm {

template <class T>
using VacaLayer = VormStatus(VACA_PARAMS(T));
template <class T>
using VacaLayerL = VormStatus(VACA_PARAMS_L(T));
template <class T>
using VacaLayerP = VormStatus(VACA_PARAMS_P(T));

// count (2 len + 1)
constexpr int vacaWork(int len, int count) { return wrapMul(count, wrapAdd(wrapMul(2, len), 1)); }

// Public layers. ----------------------------------------------------------------------------------

template <int teamLimit, class T>
VORM_INLINE VormStatus vacaChecked(VacaLayer<T>* driver, VacaLayer<T>* kernel, VacaLayer<T>* kernelS2, VACA_PARAMS(T))
{
    if (anyNull(pSrc, pVal, pDst)) return StatusNullPointer;
    if (count < 1) return StatusBadCount;
    if (len < 1) return StatusBadSize;
    if (anyBadStride<T>(srcStride0, srcStride2, valStride0, dstStride0, dstStride2)) return StatusBadStride;

    if (vacaWork(len, count) > teamLimit) return driver(VACA_ARGS);
    if (contiguous<T>(srcStride2, dstStride2)) return kernel(VACA_ARGS);
    return kernelS2(VACA_ARGS);
}

template <int teamLimit, class T>
VORM_INLINE VormStatus vacaCheckedL(VacaLayerL<T>* driver, VacaLayerL<T>* kernel, VacaLayerL<T>* kernelS2,
                                    VACA_PARAMS_L(T))
{
    if (anyNull(ppSrc, ppVal, ppDst)) return StatusNullPointer;
    if (count < 1) return StatusBadCount;
    if (len < 1) return StatusBadSize;
    if (anyBadStride<T>(srcStride2, dstStride2)) return StatusBadStride;
    if (anyBadShift<T>(srcShift, valShift, dstShift)) return StatusBadShift;

    if (vacaWork(len, count) > teamLimit) return driver(VACA_ARGS_L);
    if (contiguous<T>(srcStride2, dstStride2)) return kernel(VACA_ARGS_L);
    return kernelS2(VACA_ARGS_L);
}

template <int teamLimit, Untested untested = Untested::none, class T>
VORM_INLINE VormStatus vacaCheckedP(VacaLayerP<T>* driver, VacaLayerP<T>* kernel, VACA_PARAMS_P(T))
{
    if (anyNull(ppSrc, pVal, ppDst)) return StatusNullPointer;
    if (count < 1) return StatusBadCount;
    if (len < 1) return StatusBadSize;
    if (untested != Untested::srcStride0 && anyBadStride<T>(srcStride0)) return StatusBadStride;
    if (anyBadStride<T>(valStride0, dstStride0)) return StatusBadStride;
    if (anyBadShift<T>(srcShift, dstShift)) return StatusBadShift;

    if (vacaWork(len, count) > teamLimit) return driver(VACA_ARGS_P);
    return kernel(VACA_ARGS_P);
}

// Drivers. ----------------------------------------------------------------------------------------

template <class T>
VORM_INLINE VormStatus vacaTeam(VacaLayer<T>* contiguousKernel, VacaLayer<T>* kernelS2, VACA_PARAMS(T))
{
    auto* const kernel = contiguous<T>(srcStride2, dstStride2) ? contiguousKernel : kernelS2;
    return inTeam<Kernels::cannotFail>(count, [=](const Chunk& chunk) {
        return kernel(advance(pSrc, wrapMul(chunk.first, srcStride0)), srcStride0, srcStride2,
                      advance(pVal, wrapMul(chunk.first, valStride0)), valStride0,
                      advance(pDst, wrapMul(chunk.first, dstStride0)), dstStride0, dstStride2, len, chunk.objects);
    });
}

template <class T>
VORM_INLINE VormStatus vacaTeamL(VacaLayerL<T>* contiguousKernel, VacaLayerL<T>* kernelS2, VACA_PARAMS_L(T))
{
    auto* const kernel = contiguous<T>(srcStride2, dstStride2) ? contiguousKernel : kernelS2;
    return inTeam<Kernels::cannotFail>(count, [=](const Chunk& chunk) {
        return kernel(ppSrc + chunk.first, srcShift, srcStride2, ppVal + chunk.first, valShift, ppDst + chunk.first,
                      dstShift, dstStride2, len, chunk.objects);
    });
}

template <class T>
VORM_INLINE VormStatus vacaTeamP(VacaLayerP<T>* kernel, VACA_PARAMS_P(T))
{
    return inTeam<Kernels::cannotFail>(count, [=](const Chunk& chunk) {
        return kernel(ppSrc, wrapAdd(srcShift, wrapMul(chunk.first, srcStride0)), srcStride0,
                      advance(pVal, wrapMul(chunk.first, valStride0)), valStride0, ppDst,
                      wrapAdd(dstShift, wrapMul(chunk.first, dstStride0)), dstStride0, len, chunk.objects);
    });
}

// Kernels. ----------------------------------------------------------------------------------------

template <class Op, class T>
VORM_INLINE VormStatus vacaContiguous(VACA_PARAMS(T))
{
    return contiguousObjects<Op>(VectorArray{pSrc, srcStride0, adjacent}, ConstantArray{pVal, valStride0},
                                 VectorArray{pDst, dstStride0, adjacent}, len, count);
}

template <class Op, class T>
VORM_INLINE VormStatus vacaContiguousL(VACA_PARAMS_L(T))
{
    return contiguousObjects<Op>(VectorList{ppSrc, srcShift, adjacent}, ConstantList{ppVal, valShift},
                                 VectorList{ppDst, dstShift, adjacent}, len, count);
}

template <class Op, class T>
VORM_INLINE VormStatus vacaAnyStride(VACA_PARAMS(T))
{
    return anyStride<Op>(VectorArray{pSrc, srcStride0, srcStride2}, ConstantArray{pVal, valStride0},
                         VectorArray{pDst, dstStride0, dstStride2}, len, count);
}

template <class Op, class T>
VORM_INLINE VormStatus vacaAnyStrideL(VACA_PARAMS_L(T))
{
    return anyStride<Op>(VectorList{ppSrc, srcShift, srcStride2}, ConstantList{ppVal, valShift},
                         VectorList{ppDst, dstShift, dstStride2}, len, count);
}

template <class Op, class T>
VORM_INLINE VormStatus vacaPointers(VACA_PARAMS_P(T))
{
    return pointerObjects<Op>(VectorArrayPointers{ppSrc, srcShift, srcStride0}, ConstantArray{pVal, valStride0},
                              VectorArrayPointers{ppDst, dstShift, dstStride0}, len, count);
}

}  // namespace vorm
