// The mava shape: an array of matrices and an array of vectors. Read transposed the matrices make the shape
// tava of it.
#pragma once

#include "frame/checks.hpp"
#include "frame/team.hpp"
#include "products/layers.hpp"
#include "products/mv.hpp"
#include "products/vector_kernels.hpp"

// The operands by layout, in the order and with the names of the exported prototypes.
#define MAVA_PARAMS(T)                                                                                                \
    const T *pSrc1, int src1Stride0, int src1Stride1, int src1Stride2, int src1Width, int src1Height, const T *pSrc2, \
        int src2Stride0, int src2Stride2, int src2Len, T *pDst, int dstStride0, int dstStride2, int count
#define MAVA_ARGS                                                                                                  \
    pSrc1, src1Stride0, src1Stride1, src1Stride2, src1Width, src1Height, pSrc2, src2Stride0, src2Stride2, src2Len, \
        pDst, dstStride0, dstStride2, count
#define MAVA_PARAMS_L(T)                                                                                    \
    const T *const *ppSrc1, int src1Shift, int src1Stride1, int src1Stride2, int src1Width, int src1Height, \
        const T *const *ppSrc2, int src2Shift, int src2Stride2, int src2Len, T *const *ppDst, int dstShift, \
        int dstStride2, int count
#define MAVA_ARGS_L                                                                                              \
    ppSrc1, src1Shift, src1Stride1, src1Stride2, src1Width, src1Height, ppSrc2, src2Shift, src2Stride2, src2Len, \
        ppDst, dstShift, dstStride2, count
#define MAVA_PARAMS_P(T)                                                                                           \
    const T *const *ppSrc1, int src1Shift, int src1Stride0, int src1Width, int src1Height, const T *const *ppSrc2, \
        int src2Shift, int src2Stride0, int src2Len, T *const *ppDst, int dstShift, int dstStride0, int count
#define MAVA_ARGS_P                                                                                                  \
    ppSrc1, src1Shift, src1Stride0, src1Width, src1Height, ppSrc2, src2Shift, src2Stride0, src2Len, ppDst, dstShift, \
        dstStride0, count

namespace vorm {

template <class T>
using MavaLayer = VormStatus(MAVA_PARAMS(T));
template <class T>
using MavaLayerL = VormStatus(MAVA_PARAMS_L(T));
template <class T>
using MavaLayerP = VormStatus(MAVA_PARAMS_P(T));

// (W (H + 1) + H) count
constexpr int mavaWork(int src1Width, int src1Height, int count)
{
    return wrapMul(wrapAdd(wrapMul(src1Width, wrapAdd(src1Height, 1)), src1Height), count);
}

// Public layers. ----------------------------------------------------------------------------------

template <class Form, int teamLimit, class T>
VORM_INLINE VormStatus mavaChecked(MavaLayer<T>* driver, MavaLayer<T>* kernel, MavaLayer<T>* kernelS2, MAVA_PARAMS(T))
{
    if (anyNull(pSrc1, pSrc2, pDst)) return StatusNullPointer;
    if (count < 1) return StatusBadCount;
    if (anyBelowOne(src2Len, src1Width, src1Height)) return StatusBadSize;
    if (!Form::fits(src1Width, src1Height, src2Len)) return StatusSizeMismatch;
    if (anyBadStride<T>(src1Stride0, src1Stride1, src1Stride2, src2Stride0, src2Stride2, dstStride0, dstStride2))
        return StatusBadStride;

    const int work = mavaWork(src1Width, src1Height, count);
    if (contiguous<T>(src1Stride2, src2Stride2, dstStride2))
        return work > teamLimit ? driver(MAVA_ARGS) : kernel(MAVA_ARGS);
    return work > teamLimitAnyStride ? driver(MAVA_ARGS) : kernelS2(MAVA_ARGS);
}

template <class Form, class T>
VORM_INLINE VormStatus mavaCheckedL(MavaLayerL<T>* driver, MavaLayerL<T>* kernel, MavaLayerL<T>* kernelS2,
                                    MAVA_PARAMS_L(T))
{
    if (anyNull(ppSrc1, ppSrc2, ppDst)) return StatusNullPointer;
    if (count < 1) return StatusBadCount;
    if (anyBelowOne(src2Len, src1Width, src1Height)) return StatusBadSize;
    if (!Form::fits(src1Width, src1Height, src2Len)) return StatusSizeMismatch;
    if (anyBadStride<T>(src1Stride1, src1Stride2, src2Stride2, dstStride2)) return StatusBadStride;
    if (anyBadShift<T>(src1Shift, src2Shift, dstShift)) return StatusBadShift;

    const int work = mavaWork(src1Width, src1Height, count);
    if (contiguous<T>(src1Stride2, src2Stride2, dstStride2))
        return work > teamLimitList ? driver(MAVA_ARGS_L) : kernel(MAVA_ARGS_L);
    return work > teamLimitAnyStride ? driver(MAVA_ARGS_L) : kernelS2(MAVA_ARGS_L);
}

template <class Form, class T>
VORM_INLINE VormStatus mavaCheckedP(MavaLayerP<T>* driver, MavaLayerP<T>* kernel, MAVA_PARAMS_P(T))
{
    if (anyNull(ppSrc1, ppSrc2, ppDst)) return StatusNullPointer;
    if (count < 1) return StatusBadCount;
    if (anyBelowOne(src2Len, src1Width, src1Height)) return StatusBadSize;
    if (!Form::fits(src1Width, src1Height, src2Len)) return StatusSizeMismatch;
    if (anyBadStride<T>(src1Stride0, src2Stride0, dstStride0)) return StatusBadStride;
    if (anyBadShift<T>(src1Shift, src2Shift, dstShift)) return StatusBadShift;

    const int work = mavaWork(src1Width, src1Height, count);
    return work > teamLimitPointers ? driver(MAVA_ARGS_P) : kernel(MAVA_ARGS_P);
}

// Drivers. ----------------------------------------------------------------------------------------

template <class T>
VORM_INLINE VormStatus mavaTeam(MavaLayer<T>* contiguousKernel, MavaLayer<T>* kernelS2, MAVA_PARAMS(T))
{
    auto* const kernel = contiguous<T>(src1Stride2, src2Stride2, dstStride2) ? contiguousKernel : kernelS2;
    return inTeam<Kernels::cannotFail>(count, [=](const Chunk& chunk) {
        return kernel(advance(pSrc1, wrapMul(chunk.first, src1Stride0)), src1Stride0, src1Stride1, src1Stride2,
                      src1Width, src1Height, advance(pSrc2, wrapMul(chunk.first, src2Stride0)), src2Stride0,
                      src2Stride2, src2Len, advance(pDst, wrapMul(chunk.first, dstStride0)), dstStride0, dstStride2,
                      chunk.objects);
    });
}

template <class T>
VORM_INLINE VormStatus mavaTeamL(MavaLayerL<T>* contiguousKernel, MavaLayerL<T>* kernelS2, MAVA_PARAMS_L(T))
{
    auto* const kernel = contiguous<T>(src1Stride2, src2Stride2, dstStride2) ? contiguousKernel : kernelS2;
    return inTeam<Kernels::cannotFail>(count, [=](const Chunk& chunk) {
        return kernel(ppSrc1 + chunk.first, src1Shift, src1Stride1, src1Stride2, src1Width, src1Height,
                      ppSrc2 + chunk.first, src2Shift, src2Stride2, src2Len, ppDst + chunk.first, dstShift, dstStride2,
                      chunk.objects);
    });
}

template <class T>
VORM_INLINE VormStatus mavaTeamP(MavaLayerP<T>* kernel, MAVA_PARAMS_P(T))
{
    return inTeam<Kernels::cannotFail>(count, [=](const Chunk& chunk) {
        return kernel(ppSrc1, wrapAdd(src1Shift, wrapMul(chunk.first, src1Stride0)), src1Stride0, src1Width, src1Height,
                      ppSrc2, wrapAdd(src2Shift, wrapMul(chunk.first, src2Stride0)), src2Stride0, src2Len, ppDst,
                      wrapAdd(dstShift, wrapMul(chunk.first, dstStride0)), dstStride0, chunk.objects);
    });
}

// Kernels. ----------------------------------------------------------------------------------------

template <class Form, class T>
VORM_INLINE VormStatus mavaContiguous(MAVA_PARAMS(T))
{
    return contiguousProducts<Form, Bodies::upTo6, T>(
        MatrixArray{pSrc1, src1Stride0, src1Stride1, adjacent}, VectorArray{pSrc2, src2Stride0, adjacent},
        VectorArray{pDst, dstStride0, adjacent}, src1Width, src1Height, count);
}

template <class Form, Bodies bodies = Bodies::upTo6, class T>
VORM_INLINE VormStatus mavaContiguousL(MAVA_PARAMS_L(T))
{
    return contiguousProducts<Form, bodies, T>(MatrixList{ppSrc1, src1Shift, src1Stride1, adjacent},
                                               VectorList{ppSrc2, src2Shift, adjacent},
                                               VectorList{ppDst, dstShift, adjacent}, src1Width, src1Height, count);
}

template <class Form, class T>
VORM_INLINE VormStatus mavaAnyStride(MAVA_PARAMS(T))
{
    return productsAnywhere<T>(Form::used(MatrixArray{pSrc1, src1Stride0, src1Stride1, src1Stride2}),
                               VectorArray{pSrc2, src2Stride0, src2Stride2}, VectorArray{pDst, dstStride0, dstStride2},
                               Form::rows(src1Width, src1Height), src2Len, 0, count);
}

// Object by object through the single-object kernel.
template <class T>
VORM_INLINE VormStatus mavaEachSingle(MvLayer<T>* single, MAVA_PARAMS_L(T))
{
    const MatrixList src1{ppSrc1, src1Shift, src1Stride1, src1Stride2};
    const VectorList src2{ppSrc2, src2Shift, src2Stride2};
    const VectorList dst{ppDst, dstShift, dstStride2};
    for (int n = 0; n < count; ++n)
        single(src1.object(n), src1Stride1, src1Stride2, src1Width, src1Height, src2.object(n), src2Stride2, src2Len,
               dst.object(n), dstStride2);
    return StatusOk;
}

template <class Form, class T>
VORM_INLINE VormStatus mavaPointers(MAVA_PARAMS_P(T))
{
    return pointerProducts<T>(Form::used(MatrixArrayPointers{ppSrc1, src1Shift, src1Stride0, src1Width}),
                              VectorArrayPointers{ppSrc2, src2Shift, src2Stride0},
                              VectorArrayPointers{ppDst, dstShift, dstStride0}, Form::rows(src1Width, src1Height),
                              src2Len, count);
}

}  // namespace vorm
