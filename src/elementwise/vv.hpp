// The vv shape: one vector and one vector, dst[i] = src1[i] op src2[i].
#pragma once

#include "elementwise/kernels.hpp"
#include "elementwise/layers.hpp"
#include "frame/checks.hpp"

// The operands by layout, in the order and with the names of the exported prototypes.
#define VV_PARAMS(T) const T *pSrc1, int src1Stride2, const T *pSrc2, int src2Stride2, T *pDst, int dstStride2, int len
#define VV_ARGS pSrc1, src1Stride2, pSrc2, src2Stride2, pDst, dstStride2, len
#define VV_PARAMS_P(T) \
    const T *const *ppSrc1, int src1Shift, const T *const *ppSrc2, int src2Shift, T *const *ppDst, int dstShift, int len
#define VV_ARGS_P ppSrc1, src1Shift, ppSrc2, src2Shift, ppDst, dstShift, len

namespace vorm {

template <class T>
using VvLayer = VormStatus(VV_PARAMS(T));
template <class T>
using VvLayerP = VormStatus(VV_PARAMS_P(T));

// Public layers. ----------------------------------------------------------------------------------

template <class T>
VORM_INLINE VormStatus vvChecked(VvLayer<T>* kernel, VvLayer<T>* kernelS2, VV_PARAMS(T))
{
    if (anyNull(pSrc1, pSrc2, pDst)) return StatusNullPointer;
    if (len < 1) return StatusBadSize;
    if (anyBadStride<T>(src1Stride2, src2Stride2, dstStride2)) return StatusBadStride;

    if (contiguous<T>(src1Stride2, src2Stride2, dstStride2)) return kernel(VV_ARGS);
    return kernelS2(VV_ARGS);
}

template <class T>
VORM_INLINE VormStatus vvCheckedP(VvLayerP<T>* kernel, VV_PARAMS_P(T))
{
    if (anyNull(ppSrc1, ppSrc2, ppDst)) return StatusNullPointer;
    if (len < 1) return StatusBadSize;
    if (anyBadShift<T>(src1Shift, src2Shift, dstShift)) return StatusBadShift;

    return kernel(VV_ARGS_P);
}

// Kernels. ----------------------------------------------------------------------------------------

template <class Op, class T>
VORM_INLINE VormStatus vvContiguous(VV_PARAMS(T))
{
    return contiguousObject<Op>(Vector{pSrc1, adjacent}, Vector{pSrc2, adjacent}, Vector{pDst, adjacent}, len);
}

template <class Op, class T>
VORM_INLINE VormStatus vvAnyStride(VV_PARAMS(T))
{
    return anyStride<Op>(Vector{pSrc1, src1Stride2}, Vector{pSrc2, src2Stride2}, Vector{pDst, dstStride2}, len, 1);
}

template <class Op, class T>
VORM_INLINE VormStatus vvPointers(VV_PARAMS_P(T))
{
    return anyStride<Op>(VectorPointers{ppSrc1, src1Shift}, VectorPointers{ppSrc2, src2Shift},
                         VectorPointers{ppDst, dstShift}, len, 1);
}

}  // namespace vorm
