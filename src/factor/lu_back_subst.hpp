// vormLUBackSubst: one matrix and one vector (mv), one matrix and an array of vectors (mva), an array of
// matrices paired with an array of vectors (mava). The matrix holds the factors and is read only.
#pragma once

#include "factor/layers.hpp"
#include "factor/lu_solve_general.hpp"
#include "frame/checks.hpp"
#include "frame/team.hpp"

// The operands by layout, in the order and with the names of the exported prototypes.
#define LU_MV_PARAMS(T)                                                                                          \
    const T *src, int srcStride1, int srcStride2, const int *pivotIndex, const T *src2, int src2Stride2, T *dst, \
        int dstStride2, int order
#define LU_MV_ARGS src, srcStride1, srcStride2, pivotIndex, src2, src2Stride2, dst, dstStride2, order
#define LU_MV_PARAMS_P(T)                                                                                          \
    const T *const *srcPointers, int srcShift, const int *pivotIndex, const T *const *src2Pointers, int src2Shift, \
        T *const *dstPointers, int dstShift, int order
#define LU_MV_ARGS_P srcPointers, srcShift, pivotIndex, src2Pointers, src2Shift, dstPointers, dstShift, order
#define LU_MVA_PARAMS(T)                                                                                 \
    const T *src, int srcStride1, int srcStride2, const int *pivotIndex, const T *src2, int src2Stride0, \
        int src2Stride2, T *dst, int dstStride0, int dstStride2, int order, int count
#define LU_MVA_ARGS \
    src, srcStride1, srcStride2, pivotIndex, src2, src2Stride0, src2Stride2, dst, dstStride0, dstStride2, order, count
#define LU_MVA_PARAMS_L(T)                                                                                        \
    const T *src, int srcStride1, int srcStride2, const int *pivotIndex, const T *const *src2List, int src2Shift, \
        int src2Stride2, T *const *dstList, int dstShift, int dstStride2, int order, int count
#define LU_MVA_ARGS_L                                                                                                \
    src, srcStride1, srcStride2, pivotIndex, src2List, src2Shift, src2Stride2, dstList, dstShift, dstStride2, order, \
        count
#define LU_MVA_PARAMS_P(T)                                                                                         \
    const T *const *srcPointers, int srcShift, const int *pivotIndex, const T *const *src2Pointers, int src2Shift, \
        int src2Stride0, T *const *dstPointers, int dstShift, int dstStride0, int order, int count
#define LU_MVA_ARGS_P                                                                                                  \
    srcPointers, srcShift, pivotIndex, src2Pointers, src2Shift, src2Stride0, dstPointers, dstShift, dstStride0, order, \
        count
#define LU_MAVA_PARAMS(T)                                                                               \
    const T *src, int srcStride0, int srcStride1, int srcStride2, const int *pivotIndex, const T *src2, \
        int src2Stride0, int src2Stride2, T *dst, int dstStride0, int dstStride2, int order, int count
#define LU_MAVA_ARGS                                                                                                  \
    src, srcStride0, srcStride1, srcStride2, pivotIndex, src2, src2Stride0, src2Stride2, dst, dstStride0, dstStride2, \
        order, count
#define LU_MAVA_PARAMS_L(T)                                                                                        \
    const T *const *srcList, int srcShift, int srcStride1, int srcStride2, const int *pivotIndex,                  \
        const T *const *src2List, int src2Shift, int src2Stride2, T *const *dstList, int dstShift, int dstStride2, \
        int order, int count
#define LU_MAVA_ARGS_L                                                                                          \
    srcList, srcShift, srcStride1, srcStride2, pivotIndex, src2List, src2Shift, src2Stride2, dstList, dstShift, \
        dstStride2, order, count
#define LU_MAVA_PARAMS_P(T)                                                                                         \
    const T *const *srcPointers, int srcShift, int srcStride0, const int *pivotIndex, const T *const *src2Pointers, \
        int src2Shift, int src2Stride0, T *const *dstPointers, int dstShift, int dstStride0, int order, int count
#define LU_MAVA_ARGS_P                                                                                          \
    srcPointers, srcShift, srcStride0, pivotIndex, src2Pointers, src2Shift, src2Stride0, dstPointers, dstShift, \
        dstStride0, order, count

namespace vorm {

template <class T>
using LuMvLayer = VormStatus(LU_MV_PARAMS(T));
template <class T>
using LuMvLayerP = VormStatus(LU_MV_PARAMS_P(T));
template <class T>
using LuMvaLayer = VormStatus(LU_MVA_PARAMS(T));
template <class T>
using LuMvaLayerL = VormStatus(LU_MVA_PARAMS_L(T));
template <class T>
using LuMvaLayerP = VormStatus(LU_MVA_PARAMS_P(T));
template <class T>
using LuMavaLayer = VormStatus(LU_MAVA_PARAMS(T));
template <class T>
using LuMavaLayerL = VormStatus(LU_MAVA_PARAMS_L(T));
template <class T>
using LuMavaLayerP = VormStatus(LU_MAVA_PARAMS_P(T));

// (2 count + order) order and (order + 2) order count; from here on a team
constexpr int luMvaWork(int order, int count) { return wrapMul(wrapAdd(wrapMul(2, count), order), order); }
constexpr int luMavaWork(int order, int count) { return wrapMul(wrapAdd(order, 2), order, count); }
constexpr int luMvaTeamFrom = 701, luMavaTeamFrom = 1201;

// Public layers. ----------------------------------------------------------------------------------

template <class T>
VORM_INLINE VormStatus luMvChecked(LuMvLayer<T>* kernel, LuMvLayer<T>* kernelS2, LU_MV_PARAMS(T))
{
    if (anyNull(src, src2, dst, pivotIndex)) return StatusNullPointer;
    if (order < 1) return StatusBadSize;
    if (anyBadStride<T>(srcStride1, srcStride2, src2Stride2, dstStride2)) return StatusBadStride;

    if (contiguous<T>(srcStride2, src2Stride2, dstStride2)) return kernel(LU_MV_ARGS);
    return kernelS2(LU_MV_ARGS);
}

template <class T>
VORM_INLINE VormStatus luMvCheckedP(LuMvLayerP<T>* kernel, LU_MV_PARAMS_P(T))
{
    if (anyNull(srcPointers, src2Pointers, dstPointers, pivotIndex)) return StatusNullPointer;
    if (order < 1) return StatusBadSize;
    if (anyBadShift<T>(srcShift, src2Shift, dstShift)) return StatusBadShift;

    return kernel(LU_MV_ARGS_P);
}

template <class T>
VORM_INLINE VormStatus luMvaChecked(LuMvaLayer<T>* driver, LuMvaLayer<T>* kernel, LuMvaLayer<T>* kernelS2,
                                    LU_MVA_PARAMS(T))
{
    if (anyNull(src, src2, dst, pivotIndex)) return StatusNullPointer;
    if (count < 1) return StatusBadCount;
    if (order < 1) return StatusBadSize;
    if (anyBadStride<T>(srcStride1, srcStride2, src2Stride0, src2Stride2, dstStride0, dstStride2))
        return StatusBadStride;

    if (luMvaWork(order, count) >= luMvaTeamFrom) return driver(LU_MVA_ARGS);
    if (contiguous<T>(srcStride2, src2Stride2, dstStride2)) return kernel(LU_MVA_ARGS);
    return kernelS2(LU_MVA_ARGS);
}

template <class T>
VORM_INLINE VormStatus luMvaCheckedL(LuMvaLayerL<T>* driver, LuMvaLayerL<T>* kernel, LuMvaLayerL<T>* kernelS2,
                                     LU_MVA_PARAMS_L(T))
{
    if (anyNull(src, src2List, dstList, pivotIndex)) return StatusNullPointer;
    if (count < 1) return StatusBadCount;
    if (order < 1) return StatusBadSize;
    if (anyBadStride<T>(srcStride1, srcStride2, src2Stride2, dstStride2)) return StatusBadStride;
    if (anyBadShift<T>(src2Shift, dstShift)) return StatusBadShift;

    if (luMvaWork(order, count) >= luMvaTeamFrom) return driver(LU_MVA_ARGS_L);
    if (contiguous<T>(srcStride2, src2Stride2, dstStride2)) return kernel(LU_MVA_ARGS_L);
    return kernelS2(LU_MVA_ARGS_L);
}

template <class T>
VORM_INLINE VormStatus luMvaCheckedP(LuMvaLayerP<T>* driver, LuMvaLayerP<T>* kernel, LU_MVA_PARAMS_P(T))
{
    if (anyNull(srcPointers, src2Pointers, dstPointers, pivotIndex)) return StatusNullPointer;
    if (count < 1) return StatusBadCount;
    if (order < 1) return StatusBadSize;
    if (anyBadStride<T>(src2Stride0, dstStride0)) return StatusBadStride;
    if (anyBadShift<T>(srcShift, src2Shift, dstShift)) return StatusBadShift;

    if (luMvaWork(order, count) >= luMvaTeamFrom) return driver(LU_MVA_ARGS_P);
    return kernel(LU_MVA_ARGS_P);
}

template <class T>
VORM_INLINE VormStatus luMavaChecked(LuMavaLayer<T>* driver, LuMavaLayer<T>* kernel, LuMavaLayer<T>* kernelS2,
                                     LU_MAVA_PARAMS(T))
{
    if (anyNull(src, src2, dst, pivotIndex)) return StatusNullPointer;
    if (count < 1) return StatusBadCount;
    if (order < 1) return StatusBadSize;
    if (anyBadStride<T>(srcStride0, srcStride1, srcStride2, src2Stride0, src2Stride2, dstStride0, dstStride2))
        return StatusBadStride;

    if (luMavaWork(order, count) >= luMavaTeamFrom) return driver(LU_MAVA_ARGS);
    if (contiguous<T>(srcStride2, src2Stride2, dstStride2)) return kernel(LU_MAVA_ARGS);
    return kernelS2(LU_MAVA_ARGS);
}

template <class T>
VORM_INLINE VormStatus luMavaCheckedL(LuMavaLayerL<T>* driver, LuMavaLayerL<T>* kernel, LuMavaLayerL<T>* kernelS2,
                                      LU_MAVA_PARAMS_L(T))
{
    if (anyNull(srcList, src2List, dstList, pivotIndex)) return StatusNullPointer;
    if (count < 1) return StatusBadCount;
    if (order < 1) return StatusBadSize;
    if (anyBadStride<T>(srcStride1, srcStride2, src2Stride2, dstStride2)) return StatusBadStride;
    if (anyBadShift<T>(srcShift, src2Shift, dstShift)) return StatusBadShift;

    if (luMavaWork(order, count) >= luMavaTeamFrom) return driver(LU_MAVA_ARGS_L);
    if (contiguous<T>(srcStride2, src2Stride2, dstStride2)) return kernel(LU_MAVA_ARGS_L);
    return kernelS2(LU_MAVA_ARGS_L);
}

template <class T>
VORM_INLINE VormStatus luMavaCheckedP(LuMavaLayerP<T>* driver, LuMavaLayerP<T>* kernel, LU_MAVA_PARAMS_P(T))
{
    if (anyNull(srcPointers, src2Pointers, dstPointers, pivotIndex)) return StatusNullPointer;
    if (count < 1) return StatusBadCount;
    if (order < 1) return StatusBadSize;
    if (anyBadStride<T>(srcStride0, src2Stride0, dstStride0)) return StatusBadStride;
    if (anyBadShift<T>(srcShift, src2Shift, dstShift)) return StatusBadShift;

    if (luMavaWork(order, count) >= luMavaTeamFrom) return driver(LU_MAVA_ARGS_P);
    return kernel(LU_MAVA_ARGS_P);
}

// Drivers. The common matrix of mva stays, with its row numbers; those of mava advance with the objects. -

template <class T>
VORM_INLINE VormStatus luMvaTeam(LuMvaLayer<T>* contiguousKernel, LuMvaLayer<T>* kernelS2, LU_MVA_PARAMS(T))
{
    auto* const kernel = contiguous<T>(srcStride2, src2Stride2, dstStride2) ? contiguousKernel : kernelS2;
    return inTeam<Kernels::cannotFail>(count, [=](const Chunk& chunk) {
        return kernel(src, srcStride1, srcStride2, pivotIndex, advance(src2, wrapMul(chunk.first, src2Stride0)),
                      src2Stride0, src2Stride2, advance(dst, wrapMul(chunk.first, dstStride0)), dstStride0, dstStride2,
                      order, chunk.objects);
    });
}

template <class T>
VORM_INLINE VormStatus luMvaTeamL(LuMvaLayerL<T>* contiguousKernel, LuMvaLayerL<T>* kernelS2, LU_MVA_PARAMS_L(T))
{
    auto* const kernel = contiguous<T>(srcStride2, src2Stride2, dstStride2) ? contiguousKernel : kernelS2;
    return inTeam<Kernels::cannotFail>(count, [=](const Chunk& chunk) {
        return kernel(src, srcStride1, srcStride2, pivotIndex, src2List + chunk.first, src2Shift, src2Stride2,
                      dstList + chunk.first, dstShift, dstStride2, order, chunk.objects);
    });
}

template <class T>
VORM_INLINE VormStatus luMvaTeamP(LuMvaLayerP<T>* kernel, LU_MVA_PARAMS_P(T))
{
    return inTeam<Kernels::cannotFail>(count, [=](const Chunk& chunk) {
        return kernel(srcPointers, srcShift, pivotIndex, src2Pointers,
                      wrapAdd(src2Shift, wrapMul(chunk.first, src2Stride0)), src2Stride0, dstPointers,
                      wrapAdd(dstShift, wrapMul(chunk.first, dstStride0)), dstStride0, order, chunk.objects);
    });
}

template <class T>
VORM_INLINE VormStatus luMavaTeam(LuMavaLayer<T>* contiguousKernel, LuMavaLayer<T>* kernelS2, LU_MAVA_PARAMS(T))
{
    auto* const kernel = contiguous<T>(srcStride2, src2Stride2, dstStride2) ? contiguousKernel : kernelS2;
    return inTeam<Kernels::cannotFail>(count, [=](const Chunk& chunk) {
        return kernel(advance(src, wrapMul(chunk.first, srcStride0)), srcStride0, srcStride1, srcStride2,
                      pivotIndex + wrapMul(chunk.first, order), advance(src2, wrapMul(chunk.first, src2Stride0)),
                      src2Stride0, src2Stride2, advance(dst, wrapMul(chunk.first, dstStride0)), dstStride0, dstStride2,
                      order, chunk.objects);
    });
}

template <class T>
VORM_INLINE VormStatus luMavaTeamL(LuMavaLayerL<T>* contiguousKernel, LuMavaLayerL<T>* kernelS2, LU_MAVA_PARAMS_L(T))
{
    auto* const kernel = contiguous<T>(srcStride2, src2Stride2, dstStride2) ? contiguousKernel : kernelS2;
    return inTeam<Kernels::cannotFail>(count, [=](const Chunk& chunk) {
        return kernel(srcList + chunk.first, srcShift, srcStride1, srcStride2, pivotIndex + wrapMul(chunk.first, order),
                      src2List + chunk.first, src2Shift, src2Stride2, dstList + chunk.first, dstShift, dstStride2,
                      order, chunk.objects);
    });
}

template <class T>
VORM_INLINE VormStatus luMavaTeamP(LuMavaLayerP<T>* kernel, LU_MAVA_PARAMS_P(T))
{
    return inTeam<Kernels::cannotFail>(count, [=](const Chunk& chunk) {
        return kernel(srcPointers, wrapAdd(srcShift, wrapMul(chunk.first, srcStride0)), srcStride0,
                      pivotIndex + wrapMul(chunk.first, order), src2Pointers,
                      wrapAdd(src2Shift, wrapMul(chunk.first, src2Stride0)), src2Stride0, dstPointers,
                      wrapAdd(dstShift, wrapMul(chunk.first, dstStride0)), dstStride0, order, chunk.objects);
    });
}

// Kernels. The order's code is chosen once, outside the loop over the objects. ------------------------

template <class T, class M, class B, class X>
VORM_INLINE VormStatus luMvKernel(const M& matrix, const int* pivotIndex, const B& b, const X& dst, int order)
{
    switch (order) {
    case 3: luSolveObjects<3, T>(matrix, b, dst, 0, pivotIndex); break;
    case 4: luSolveObjects<4, T>(matrix, b, dst, 0, pivotIndex); break;
    case 5: luSolveObjects<5, T>(matrix, b, dst, 0, pivotIndex); break;
    case 6: luSolveObjects<6, T>(matrix, b, dst, 0, pivotIndex); break;
    default: luSolveGeneral<T>(matrix, b, dst, 0, order, pivotIndex);
    }
    return StatusOk;
}

template <class T, class M, class B, class X>
VORM_INLINE VormStatus luMvaKernel(const M& matrix, const int* pivotIndex, const B& b, const X& dst, int order,
                                   int count)
{
    switch (order) {
    case 3: luSolveVectors<3, T>(matrix, b, dst, pivotIndex, count); break;
    case 4: luSolveVectors<4, T>(matrix, b, dst, pivotIndex, count); break;
    case 5: luSolveVectors<5, T>(matrix, b, dst, pivotIndex, count); break;
    case 6: luSolveVectors<6, T>(matrix, b, dst, pivotIndex, count); break;
    default: luSolveVectors<T>(matrix, b, dst, pivotIndex, order, count);
    }
    return StatusOk;
}

template <class T, class M, class B, class X>
VORM_INLINE VormStatus luMavaKernel(const M& matrix, const int* pivotIndex, const B& b, const X& dst, int order,
                                    int count)
{
    switch (order) {
    case 3: luSolvePairs<3, T>(matrix, b, dst, pivotIndex, count); break;
    case 4: luSolvePairs<4, T>(matrix, b, dst, pivotIndex, count); break;
    case 5: luSolvePairs<5, T>(matrix, b, dst, pivotIndex, count); break;
    case 6: luSolvePairs<6, T>(matrix, b, dst, pivotIndex, count); break;
    default: luSolvePairs<T>(matrix, b, dst, pivotIndex, order, count);
    }
    return StatusOk;
}

template <class T>
VORM_INLINE VormStatus luMvContiguous(LU_MV_PARAMS(T))
{
    return luMvKernel<T>(Matrix{src, srcStride1, adjacent}, pivotIndex, Vector{src2, adjacent}, Vector{dst, adjacent},
                         order);
}
template <class T>
VORM_INLINE VormStatus luMvAnyStride(LU_MV_PARAMS(T))
{
    return luMvKernel<T>(Matrix{src, srcStride1, srcStride2}, pivotIndex, Vector{src2, src2Stride2},
                         Vector{dst, dstStride2}, order);
}
template <class T>
VORM_INLINE VormStatus luMvPointers(LU_MV_PARAMS_P(T))
{
    return luMvKernel<T>(MatrixPointers{srcPointers, srcShift, order}, pivotIndex,
                         VectorPointers{src2Pointers, src2Shift}, VectorPointers{dstPointers, dstShift}, order);
}

template <class T>
VORM_INLINE VormStatus luMvaContiguous(LU_MVA_PARAMS(T))
{
    return luMvaKernel<T>(Matrix{src, srcStride1, adjacent}, pivotIndex, VectorArray{src2, src2Stride0, adjacent},
                          VectorArray{dst, dstStride0, adjacent}, order, count);
}
template <class T>
VORM_INLINE VormStatus luMvaContiguousL(LU_MVA_PARAMS_L(T))
{
    return luMvaKernel<T>(Matrix{src, srcStride1, adjacent}, pivotIndex, VectorList{src2List, src2Shift, adjacent},
                          VectorList{dstList, dstShift, adjacent}, order, count);
}
template <class T>
VORM_INLINE VormStatus luMvaAnyStride(LU_MVA_PARAMS(T))
{
    return luMvaKernel<T>(Matrix{src, srcStride1, srcStride2}, pivotIndex, VectorArray{src2, src2Stride0, src2Stride2},
                          VectorArray{dst, dstStride0, dstStride2}, order, count);
}
template <class T>
VORM_INLINE VormStatus luMvaAnyStrideL(LU_MVA_PARAMS_L(T))
{
    return luMvaKernel<T>(Matrix{src, srcStride1, srcStride2}, pivotIndex, VectorList{src2List, src2Shift, src2Stride2},
                          VectorList{dstList, dstShift, dstStride2}, order, count);
}
template <class T>
VORM_INLINE VormStatus luMvaPointers(LU_MVA_PARAMS_P(T))
{
    const MatrixPointers matrix{srcPointers, srcShift, order};
    const VectorArrayPointers b{src2Pointers, src2Shift, src2Stride0};
    const VectorArrayPointers x{dstPointers, dstShift, dstStride0};
    if (order <= bufferedOrder && inPlanes(b) && storableAsPlanes(x, order, 1, count))
        return luMvaKernel<T>(matrix, pivotIndex, asPlanes(b), asPlanes(x), order, count);
    return luMvaKernel<T>(matrix, pivotIndex, b, x, order, count);
}

template <class T>
VORM_INLINE VormStatus luMavaContiguous(LU_MAVA_PARAMS(T))
{
    return luMavaKernel<T>(MatrixArray{src, srcStride0, srcStride1, adjacent}, pivotIndex,
                           VectorArray{src2, src2Stride0, adjacent}, VectorArray{dst, dstStride0, adjacent}, order,
                           count);
}
template <class T>
VORM_INLINE VormStatus luMavaContiguousL(LU_MAVA_PARAMS_L(T))
{
    return luMavaKernel<T>(MatrixList{srcList, srcShift, srcStride1, adjacent}, pivotIndex,
                           VectorList{src2List, src2Shift, adjacent}, VectorList{dstList, dstShift, adjacent}, order,
                           count);
}
template <class T>
VORM_INLINE VormStatus luMavaAnyStride(LU_MAVA_PARAMS(T))
{
    return luMavaKernel<T>(MatrixArray{src, srcStride0, srcStride1, srcStride2}, pivotIndex,
                           VectorArray{src2, src2Stride0, src2Stride2}, VectorArray{dst, dstStride0, dstStride2}, order,
                           count);
}
template <class T>
VORM_INLINE VormStatus luMavaAnyStrideL(LU_MAVA_PARAMS_L(T))
{
    return luMavaKernel<T>(MatrixList{srcList, srcShift, srcStride1, srcStride2}, pivotIndex,
                           VectorList{src2List, src2Shift, src2Stride2}, VectorList{dstList, dstShift, dstStride2},
                           order, count);
}
template <class T>
VORM_INLINE VormStatus luMavaPointers(LU_MAVA_PARAMS_P(T))
{
    const MatrixArrayPointers matrices{srcPointers, srcShift, srcStride0, order};
    const VectorArrayPointers b{src2Pointers, src2Shift, src2Stride0};
    const VectorArrayPointers x{dstPointers, dstShift, dstStride0};
    if (order <= bufferedOrder && inPlanes(matrices) && inPlanes(b) && storableAsPlanes(x, order, 1, count))
        return luMavaKernel<T>(asPlanes(matrices), pivotIndex, asPlanes(b), asPlanes(x), order, count);
    return luMavaKernel<T>(matrices, pivotIndex, b, x, order, count);
}

}  // namespace vorm
