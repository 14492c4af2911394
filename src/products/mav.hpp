// The mav shape: an array of matrices and one vector common to all objects. Read transposed the matrices make
// the shape tav of it.
#pragma once

#include "frame/checks.hpp"
#include "frame/team.hpp"
#include "products/layers.hpp"
#include "products/mv.hpp"
#include "products/vector_kernels.hpp"

// The operands by layout, in the order and with the names of the exported prototypes.
#define MAV_PARAMS(T)                                                                                                 \
    const T *pSrc1, int src1Stride0, int src1Stride1, int src1Stride2, int src1Width, int src1Height, const T *pSrc2, \
        int src2Stride2, int src2Len, T *pDst, int dstStride0, int dstStride2, int count
#define MAV_ARGS                                                                                            \
    pSrc1, src1Stride0, src1Stride1, src1Stride2, src1Width, src1Height, pSrc2, src2Stride2, src2Len, pDst, \
        dstStride0, dstStride2, count
#define MAV_PARAMS_L(T)                                                                                     \
    const T *const *ppSrc1, int src1Shift, int src1Stride1, int src1Stride2, int src1Width, int src1Height, \
        const T *pSrc2, int src2Stride2, int src2Len, T *const *ppDst, int dstShift, int dstStride2, int count
#define MAV_ARGS_L                                                                                                    \
    ppSrc1, src1Shift, src1Stride1, src1Stride2, src1Width, src1Height, pSrc2, src2Stride2, src2Len, ppDst, dstShift, \
        dstStride2, count
#define MAV_PARAMS_P(T)                                                                                            \
    const T *const *ppSrc1, int src1Shift, int src1Stride0, int src1Width, int src1Height, const T *const *ppSrc2, \
        int src2Shift, int src2Len, T *const *ppDst, int dstShift, int dstStride0, int count
#define MAV_ARGS_P                                                                                                  \
    ppSrc1, src1Shift, src1Stride0, src1Width, src1Height, ppSrc2, src2Shift, src2Len, ppDst, dstShift, dstStride0, \
        count

namespace vorm {

template <class T>
using MavLayer = VormStatus(MAV_PARAMS(T));
template <class T>
using MavLayerL = VormStatus(MAV_PARAMS_L(T));
template <class T>
using MavLayerP = VormStatus(MAV_PARAMS_P(T));

// K (N + 1) count + N with K rows and N columns of the matrix as it is used: mav H (W + 1) count + W, tav
// W (H + 1) count + H.
template <class Form>
constexpr int mavWork(int src1Width, int src1Height, int src2Len, int count)
{
    return wrapAdd(wrapMul(Form::rows(src1Width, src1Height), wrapAdd(src2Len, 1), count), src2Len);
}

// Public layers. ----------------------------------------------------------------------------------

template <class Form, int teamLimit, class T>
VORM_INLINE VormStatus mavChecked(MavLayer<T>* driver, MavLayer<T>* kernel, MavLayer<T>* kernelS2, MAV_PARAMS(T))
{
    if (anyNull(pSrc1, pSrc2, pDst)) return StatusNullPointer;
    if (count < 1) return StatusBadCount;
    if (anyBelowOne(src2Len, src1Width, src1Height)) return StatusBadSize;
    if (!Form::fits(src1Width, src1Height, src2Len)) return StatusSizeMismatch;
    if (anyBadStride<T>(src1Stride0, src1Stride1, src1Stride2, src2Stride2, dstStride0, dstStride2))
        return StatusBadStride;

    const int work = mavWork<Form>(src1Width, src1Height, src2Len, count);
    if (contiguous<T>(src1Stride2, src2Stride2, dstStride2))
        return work > teamLimit ? driver(MAV_ARGS) : kernel(MAV_ARGS);
    return work > teamLimitAnyStride ? driver(MAV_ARGS) : kernelS2(MAV_ARGS);
}

template <class Form, class T>
VORM_INLINE VormStatus mavCheckedL(MavLayerL<T>* driver, MavLayerL<T>* kernel, MavLayerL<T>* kernelS2, MAV_PARAMS_L(T))
{
    if (anyNull(ppSrc1, pSrc2, ppDst)) return StatusNullPointer;
    if (count < 1) return StatusBadCount;
    if (anyBelowOne(src2Len, src1Width, src1Height)) return StatusBadSize;
    if (!Form::fits(src1Width, src1Height, src2Len)) return StatusSizeMismatch;
    if (anyBadStride<T>(src1Stride1, src1Stride2, src2Stride2, dstStride2)) return StatusBadStride;
    if (anyBadShift<T>(src1Shift, dstShift)) return StatusBadShift;

    const int work = mavWork<Form>(src1Width, src1Height, src2Len, count);
    if (contiguous<T>(src1Stride2, src2Stride2, dstStride2))
        return work > teamLimitList ? driver(MAV_ARGS_L) : kernel(MAV_ARGS_L);
    return work > teamLimitAnyStride ? driver(MAV_ARGS_L) : kernelS2(MAV_ARGS_L);
}

template <class Form, class T>
VORM_INLINE VormStatus mavCheckedP(MavLayerP<T>* driver, MavLayerP<T>* kernel, MAV_PARAMS_P(T))
{
    if (anyNull(ppSrc1, ppSrc2, ppDst)) return StatusNullPointer;
    if (count < 1) return StatusBadCount;
    if (anyBelowOne(src2Len, src1Width, src1Height)) return StatusBadSize;
    if (!Form::fits(src1Width, src1Height, src2Len)) return StatusSizeMismatch;
    if (anyBadStride<T>(src1Stride0, dstStride0)) return StatusBadStride;
    if (anyBadShift<T>(src1Shift, src2Shift, dstShift)) return StatusBadShift;

    const int work = mavWork<Form>(src1Width, src1Height, src2Len, count);
    return work > teamLimitPointers ? driver(MAV_ARGS_P) : kernel(MAV_ARGS_P);
}

// Drivers. ----------------------------------------------------------------------------------------

template <class T>
VORM_INLINE VormStatus mavTeam(MavLayer<T>* contiguousKernel, MavLayer<T>* kernelS2, MAV_PARAMS(T))
{
    auto* const kernel = contiguous<T>(src1Stride2, src2Stride2, dstStride2) ? contiguousKernel : kernelS2;
    return inTeam<Kernels::cannotFail>(count, [=](const Chunk& chunk) {
        return kernel(advance(pSrc1, wrapMul(chunk.first, src1Stride0)), src1Stride0, src1Stride1, src1Stride2,
                      src1Width, src1Height, pSrc2, src2Stride2, src2Len,
                      advance(pDst, wrapMul(chunk.first, dstStride0)), dstStride0, dstStride2, chunk.objects);
    });
}

template <class T>
VORM_INLINE VormStatus mavTeamL(MavLayerL<T>* contiguousKernel, MavLayerL<T>* kernelS2, MAV_PARAMS_L(T))
{
    auto* const kernel = contiguous<T>(src1Stride2, src2Stride2, dstStride2) ? contiguousKernel : kernelS2;
    return inTeam<Kernels::cannotFail>(count, [=](const Chunk& chunk) {
        return kernel(ppSrc1 + chunk.first, src1Shift, src1Stride1, src1Stride2, src1Width, src1Height, pSrc2,
                      src2Stride2, src2Len, ppDst + chunk.first, dstShift, dstStride2, chunk.objects);
    });
}

template <class T>
VORM_INLINE VormStatus mavTeamP(MavLayerP<T>* kernel, MAV_PARAMS_P(T))
{
    return inTeam<Kernels::cannotFail>(count, [=](const Chunk& chunk) {
        return kernel(ppSrc1, wrapAdd(src1Shift, wrapMul(chunk.first, src1Stride0)), src1Stride0, src1Width, src1Height,
                      ppSrc2, src2Shift, src2Len, ppDst, wrapAdd(dstShift, wrapMul(chunk.first, dstStride0)),
                      dstStride0, chunk.objects);
    });
}

// Kernels. ----------------------------------------------------------------------------------------

template <class Form, class T>
VORM_INLINE VormStatus mavContiguous(MAV_PARAMS(T))
{
    return contiguousProducts<Form, Bodies::upTo6, T>(MatrixArray{pSrc1, src1Stride0, src1Stride1, adjacent},
                                                      Vector{pSrc2, adjacent}, VectorArray{pDst, dstStride0, adjacent},
                                                      src1Width, src1Height, count);
}

template <class Form, Bodies bodies = Bodies::upTo6, class T>
VORM_INLINE VormStatus mavContiguousL(MAV_PARAMS_L(T))
{
    return contiguousProducts<Form, bodies, T>(MatrixList{ppSrc1, src1Shift, src1Stride1, adjacent},
                                               Vector{pSrc2, adjacent}, VectorList{ppDst, dstShift, adjacent},
                                               src1Width, src1Height, count);
}

template <class Form, class T>
VORM_INLINE VormStatus mavAnyStride(MAV_PARAMS(T))
{
    return productsAnywhere<T>(Form::used(MatrixArray{pSrc1, src1Stride0, src1Stride1, src1Stride2}),
                               Vector{pSrc2, src2Stride2}, VectorArray{pDst, dstStride0, dstStride2},
                               Form::rows(src1Width, src1Height), src2Len, 0, count);
}

// Object by object through the single-object kernel.
template <class T>
VORM_INLINE VormStatus mavEachSingle(MvLayer<T>* single, MAV_PARAMS_L(T))
{
    const MatrixList src1{ppSrc1, src1Shift, src1Stride1, src1Stride2};
    const VectorList dst{ppDst, dstShift, dstStride2};
    for (int n = 0; n < count; ++n)
        single(src1.object(n), src1Stride1, src1Stride2, src1Width, src1Height, pSrc2, src2Stride2, src2Len,
               dst.object(n), dstStride2);
    return StatusOk;
}

template <class Form, class T>
VORM_INLINE VormStatus mavPointers(MAV_PARAMS_P(T))
{
    return pointerProducts<T>(Form::used(MatrixArrayPointers{ppSrc1, src1Shift, src1Stride0, src1Width}),
                              VectorPointers{ppSrc2, src2Shift}, VectorArrayPointers{ppDst, dstShift, dstStride0},
                              Form::rows(src1Width, src1Height), src2Len, count);
}

}  // namespace vorm
