// The vc shape, one vector and one constant, dst[i] = src[i] op val; and cv, the same with the
// operation turned round, dst[i] = val - src[i].
#pragma once

#include "elementwise/kernels.hpp"
#include "elementwise/layers.hpp"
#include "frame/checks.hpp"

// The operands by layout, in the order and with the names of the exported prototypes.
#define VC_PARAMS(T) const T *pSrc, int srcStride2, T val, T *pDst, int dstStride2, int len
#define VC_ARGS pSrc, srcStride2, val, pDst, dstStride2, len
#define VC_PARAMS_P(T) const T *const *ppSrc, int srcShift, T val, T *const *ppDst, int dstShift, int len
#define VC_ARGS_P ppSrc, srcShift, val, ppDst, dstShift, len

namespace vorm {

template <class T>
using VcLayer = VormStatus(VC_PARAMS(T));
template <class T>
using VcLayerP = VormStatus(VC_PARAMS_P(T));

// Public layers. ----------------------------------------------------------------------------------

template <class T>
VORM_INLINE VormStatus vcChecked(VcLayer<T>* kernel, VcLayer<T>* kernelS2, VC_PARAMS(T))
{
    if (anyNull(pSrc, pDst)) return StatusNullPointer;
    if (len < 1) return StatusBadSize;
    if (anyBadStride<T>(srcStride2, dstStride2)) return StatusBadStride;

    if (contiguous<T>(srcStride2, dstStride2)) return kernel(VC_ARGS);
    return kernelS2(VC_ARGS);
}

template <class T>
VORM_INLINE VormStatus vcCheckedP(VcLayerP<T>* kernel, VC_PARAMS_P(T))
{
    if (anyNull(ppSrc, ppDst)) return StatusNullPointer;
    if (len < 1) return StatusBadSize;
    if (anyBadShift<T>(srcShift, dstShift)) return StatusBadShift;

    return kernel(VC_ARGS_P);
}

// Kernels. ----------------------------------------------------------------------------------------

template <class Op, class T>
VORM_INLINE VormStatus vcContiguous(VC_PARAMS(T))
{
    return contiguousObject<Op>(Vector{pSrc, adjacent}, Constant{val}, Vector{pDst, adjacent}, len);
}

template <class Op, class T>
VORM_INLINE VormStatus vcAnyStride(VC_PARAMS(T))
{
    return anyStride<Op>(Vector{pSrc, srcStride2}, Constant{val}, Vector{pDst, dstStride2}, len, 1);
}

template <class Op, class T>
VORM_INLINE VormStatus vcPointers(VC_PARAMS_P(T))
{
    return anyStride<Op>(VectorPointers{ppSrc, srcShift}, Constant{val}, VectorPointers{ppDst, dstShift}, len, 1);
}

}  // namespace vorm
