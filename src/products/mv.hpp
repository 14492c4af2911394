// The mv shape: one matrix and one vector. Read transposed the matrix makes the shape tv of it.
#pragma once

#include "frame/checks.hpp"
#include "products/layers.hpp"
#include "products/vector_kernels.hpp"

// The operands by layout, in the order and with the names of the exported prototypes.
#define MV_PARAMS(T)                                                                                                  \
    const T *pSrc1, int src1Stride1, int src1Stride2, int src1Width, int src1Height, const T *pSrc2, int src2Stride2, \
        int src2Len, T *pDst, int dstStride2
#define MV_ARGS pSrc1, src1Stride1, src1Stride2, src1Width, src1Height, pSrc2, src2Stride2, src2Len, pDst, dstStride2
#define MV_PARAMS_P(T)                                                                                           \
    const T *const *ppSrc1, int src1Shift, int src1Width, int src1Height, const T *const *ppSrc2, int src2Shift, \
        int src2Len, T *const *ppDst, int dstShift
#define MV_ARGS_P ppSrc1, src1Shift, src1Width, src1Height, ppSrc2, src2Shift, src2Len, ppDst, dstShift

namespace vorm {

template <class T>
using MvLayer = VormStatus(MV_PARAMS(T));
template <class T>
using MvLayerP = VormStatus(MV_PARAMS_P(T));

// Public layers. ----------------------------------------------------------------------------------

template <class Form, class T>
VORM_INLINE VormStatus mvChecked(MvLayer<T>* kernel, MvLayer<T>* kernelS2, MV_PARAMS(T))
{
    if (anyNull(pSrc1, pSrc2, pDst)) return StatusNullPointer;
    if (anyBelowOne(src2Len, src1Width, src1Height)) return StatusBadSize;
    if (!Form::fits(src1Width, src1Height, src2Len)) return StatusSizeMismatch;
    if (anyBadStride<T>(src1Stride1, src1Stride2, src2Stride2, dstStride2)) return StatusBadStride;

    if (contiguous<T>(src1Stride2, src2Stride2, dstStride2)) return kernel(MV_ARGS);
    return kernelS2(MV_ARGS);
}

template <class Form, class T>
VORM_INLINE VormStatus mvCheckedP(MvLayerP<T>* kernel, MV_PARAMS_P(T))
{
    if (anyNull(ppSrc1, ppSrc2, ppDst)) return StatusNullPointer;
    if (anyBelowOne(src2Len, src1Width, src1Height)) return StatusBadSize;
    if (!Form::fits(src1Width, src1Height, src2Len)) return StatusSizeMismatch;
    if (anyBadShift<T>(src1Shift, src2Shift, dstShift)) return StatusBadShift;

    return kernel(MV_ARGS_P);
}

// Kernels. ----------------------------------------------------------------------------------------

template <class Form, class T>
VORM_INLINE VormStatus mvContiguous(MV_PARAMS(T))
{
    return contiguousProduct<Form, T>(Matrix{pSrc1, src1Stride1, adjacent}, Vector{pSrc2, adjacent},
                                      Vector{pDst, adjacent}, src1Width, src1Height);
}

template <class Form, class T>
VORM_INLINE VormStatus mvAnyStride(MV_PARAMS(T))
{
    return productsAnywhere<T>(Form::used(Matrix{pSrc1, src1Stride1, src1Stride2}), Vector{pSrc2, src2Stride2},
                               Vector{pDst, dstStride2}, Form::rows(src1Width, src1Height), src2Len, 0, 1);
}

template <class Form, class T>
VORM_INLINE VormStatus mvPointers(MV_PARAMS_P(T))
{
    return productsAnywhere<T>(Form::used(MatrixPointers{ppSrc1, src1Shift, src1Width}),
                               VectorPointers{ppSrc2, src2Shift}, VectorPointers{ppDst, dstShift},
                               Form::rows(src1Width, src1Height), src2Len, 0, 1);
}

}  // namespace vorm
