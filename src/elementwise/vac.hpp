// The vac shape, an array of vectors and one constant, dst[n][i] = src[n][i] op val; and cva, the
// same with the operation turned round, dst[n][i] = val - src[n][i].
#pragma once

#include "elementwise/kernels.hpp"
#include "elementwise/layers.hpp"
#include "frame/checks.hpp"
#include "frame/team.hpp"

// The operands by layout, in the order and with the names of the exported prototypes.
#define VAC_PARAMS(T) \
    const T *pSrc, int srcStride0, int srcStride2, T val, T *pDst, int dstStride0, int dstStride2, int len, int count
#define VAC_ARGS pSrc, srcStride0, srcStride2, val, pDst, dstStride0, dstStride2, len, count
#define VAC_PARAMS_L(T)                                                                                        \
    const T *const *ppSrc, int srcShift, int srcStride2, T val, T *const *ppDst, int dstShift, int dstStride2, \
        int len, int count
#define VAC_ARGS_L ppSrc, srcShift, srcStride2, val, ppDst, dstShift, dstStride2, len, count
#define VAC_PARAMS_P(T)                                                                                        \
    const T *const *ppSrc, int srcShift, int srcStride0, T val, T *const *ppDst, int dstShift, int dstStride0, \
        int len, int count
#define VAC_ARGS_P ppSrc, srcShift, srcStride0, val, ppDst, dstShift, dstStride0, len, count

namespace vorm {

template <class T>
using VacLayer = VormStatus(VAC_PARAMS(T));
template <class T>
using VacLayerL = VormStatus(VAC_PARAMS_L(T));
template <class T>
using VacLayerP = VormStatus(VAC_PARAMS_P(T));

// (2 count + 1) len. cva measures its objects alone: 2 count.
enum class Work { elements, objects };

template <Work work>
constexpr int vacWork(int len, int count)
{
    const int twice = wrapMul(2, count);
    return work == Work::objects ? twice : wrapMul(wrapAdd(twice, 1), len);
}

// Public layers. ----------------------------------------------------------------------------------

template <int teamLimit, Work work, class T>
VORM_INLINE VormStatus vacChecked(VacLayer<T>* driver, VacLayer<T>* kernel, VacLayer<T>* kernelS2, VAC_PARAMS(T))
{
    if (anyNull(pSrc, pDst)) return StatusNullPointer;
    if (count < 1) return StatusBadCount;
    if (len < 1) return StatusBadSize;
    if (anyBadStride<T>(srcStride0, srcStride2, dstStride0, dstStride2)) return StatusBadStride;

    if (vacWork<work>(len, count) > teamLimit) return driver(VAC_ARGS);
    if (contiguous<T>(srcStride2, dstStride2)) return kernel(VAC_ARGS);
    return kernelS2(VAC_ARGS);
}

template <int teamLimit, Work work, class T>
VORM_INLINE VormStatus vacCheckedL(VacLayerL<T>* driver, VacLayerL<T>* kernel, VacLayerL<T>* kernelS2, VAC_PARAMS_L(T))
{
    if (anyNull(ppSrc, ppDst)) return StatusNullPointer;
    if (count < 1) return StatusBadCount;
    if (len < 1) return StatusBadSize;
    if (anyBadStride<T>(srcStride2, dstStride2)) return StatusBadStride;
    if (anyBadShift<T>(srcShift, dstShift)) return StatusBadShift;

    if (vacWork<work>(len, count) > teamLimit) return driver(VAC_ARGS_L);
    if (contiguous<T>(srcStride2, dstStride2)) return kernel(VAC_ARGS_L);
    return kernelS2(VAC_ARGS_L);
}

template <int teamLimit, Work work, class T>
VORM_INLINE VormStatus vacCheckedP(VacLayerP<T>* driver, VacLayerP<T>* kernel, VAC_PARAMS_P(T))
{
    if (anyNull(ppSrc, ppDst)) return StatusNullPointer;
    if (count < 1) return StatusBadCount;
    if (len < 1) return StatusBadSize;
    if (anyBadStride<T>(srcStride0, dstStride0)) return StatusBadStride;
    if (anyBadShift<T>(srcShift, dstShift)) return StatusBadShift;

    if (vacWork<work>(len, count) > teamLimit) return driver(VAC_ARGS_P);
    return kernel(VAC_ARGS_P);
}

// Drivers. ----------------------------------------------------------------------------------------

template <class T>
VORM_INLINE VormStatus vacTeam(VacLayer<T>* contiguousKernel, VacLayer<T>* kernelS2, VAC_PARAMS(T))
{
    auto* const kernel = contiguous<T>(srcStride2, dstStride2) ? contiguousKernel : kernelS2;
    return inTeam<Kernels::cannotFail>(count, [=](const Chunk& chunk) {
        return kernel(advance(pSrc, wrapMul(chunk.first, srcStride0)), srcStride0, srcStride2, val,
                      advance(pDst, wrapMul(chunk.first, dstStride0)), dstStride0, dstStride2, len, chunk.objects);
    });
}

template <class T>
VORM_INLINE VormStatus vacTeamL(VacLayerL<T>* contiguousKernel, VacLayerL<T>* kernelS2, VAC_PARAMS_L(T))
{
    auto* const kernel = contiguous<T>(srcStride2, dstStride2) ? contiguousKernel : kernelS2;
    return inTeam<Kernels::cannotFail>(count, [=](const Chunk& chunk) {
        return kernel(ppSrc + chunk.first, srcShift, srcStride2, val, ppDst + chunk.first, dstShift, dstStride2, len,
                      chunk.objects);
    });
}

template <class T>
VORM_INLINE VormStatus vacTeamP(VacLayerP<T>* kernel, VAC_PARAMS_P(T))
{
    return inTeam<Kernels::cannotFail>(count, [=](const Chunk& chunk) {
        return kernel(ppSrc, wrapAdd(srcShift, wrapMul(chunk.first, srcStride0)), srcStride0, val, ppDst,
                      wrapAdd(dstShift, wrapMul(chunk.first, dstStride0)), dstStride0, len, chunk.objects);
    });
}

// Kernels. ----------------------------------------------------------------------------------------

template <class Op, class T>
VORM_INLINE VormStatus vacContiguous(VAC_PARAMS(T))
{
    return contiguousObjects<Op>(VectorArray{pSrc, srcStride0, adjacent}, Constant{val},
                                 VectorArray{pDst, dstStride0, adjacent}, len, count);
}

template <class Op, class T>
VORM_INLINE VormStatus vacContiguousL(VAC_PARAMS_L(T))
{
    return contiguousObjects<Op>(VectorList{ppSrc, srcShift, adjacent}, Constant{val},
                                 VectorList{ppDst, dstShift, adjacent}, len, count);
}

template <class Op, class T>
VORM_INLINE VormStatus vacAnyStride(VAC_PARAMS(T))
{
    return anyStride<Op>(VectorArray{pSrc, srcStride0, srcStride2}, Constant{val},
                         VectorArray{pDst, dstStride0, dstStride2}, len, count);
}

template <class Op, class T>
VORM_INLINE VormStatus vacAnyStrideL(VAC_PARAMS_L(T))
{
    return anyStride<Op>(VectorList{ppSrc, srcShift, srcStride2}, Constant{val},
                         VectorList{ppDst, dstShift, dstStride2}, len, count);
}

template <class Op, class T>
VORM_INLINE VormStatus vacPointers(VAC_PARAMS_P(T))
{
    return pointerObjects<Op>(VectorArrayPointers{ppSrc, srcShift, srcStride0}, Constant{val},
                              VectorArrayPointers{ppDst, dstShift, dstStride0}, len, count);
}

}  // namespace vorm
