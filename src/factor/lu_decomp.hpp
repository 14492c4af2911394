// vormLUDecomp of one matrix (m) and of an array of matrices (ma): P A = L U.
#pragma once

#include "factor/layers.hpp"
#include "factor/lu.hpp"
#include "frame/checks.hpp"
#include "frame/team.hpp"

// The operands by layout, in the order and with the names of the exported prototypes.
#define LU_DECOMP_M_PARAMS(T) \
    const T *src, int srcStride1, int srcStride2, int *pivotIndex, T *dst, int dstStride1, int dstStride2, int order
#define LU_DECOMP_M_ARGS src, srcStride1, srcStride2, pivotIndex, dst, dstStride1, dstStride2, order
#define LU_DECOMP_M_PARAMS_P(T) \
    const T *const *srcPointers, int srcShift, int *pivotIndex, T *const *dstPointers, int dstShift, int order
#define LU_DECOMP_M_ARGS_P srcPointers, srcShift, pivotIndex, dstPointers, dstShift, order
#define LU_DECOMP_MA_PARAMS(T)                                                                             \
    const T *src, int srcStride0, int srcStride1, int srcStride2, int *pivotIndex, T *dst, int dstStride0, \
        int dstStride1, int dstStride2, int order, int count
#define LU_DECOMP_MA_ARGS \
    src, srcStride0, srcStride1, srcStride2, pivotIndex, dst, dstStride0, dstStride1, dstStride2, order, count
#define LU_DECOMP_MA_PARAMS_L(T)                                                                               \
    const T *const *srcList, int srcShift, int srcStride1, int srcStride2, int *pivotIndex, T *const *dstList, \
        int dstShift, int dstStride1, int dstStride2, int order, int count
#define LU_DECOMP_MA_ARGS_L \
    srcList, srcShift, srcStride1, srcStride2, pivotIndex, dstList, dstShift, dstStride1, dstStride2, order, count
#define LU_DECOMP_MA_PARAMS_P(T)                                                                                     \
    const T *const *srcPointers, int srcShift, int srcStride0, int *pivotIndex, T *const *dstPointers, int dstShift, \
        int dstStride0, int order, int count
#define LU_DECOMP_MA_ARGS_P \
    srcPointers, srcShift, srcStride0, pivotIndex, dstPointers, dstShift, dstStride0, order, count

// One matrix on the general path. The kernels of single matrices and those of arrays call the same
// routine, so that an object of an array has the bits of the single one.
#define LU_COM_PARAMS_S(T) const T *src, int srcStride1, int *pivotIndex, T *dst, int dstStride1, int order
#define LU_COM_ARGS_S src, srcStride1, pivotIndex, dst, dstStride1, order
#define LU_COM_PARAMS_S2(T) LU_DECOMP_M_PARAMS(T)
#define LU_COM_ARGS_S2 LU_DECOMP_M_ARGS
#define LU_COM_PARAMS_P(T)                                                                                           \
    const T *const *srcPointers, int srcShift, int srcStride0, int *pivotIndex, T *const *dstPointers, int dstShift, \
        int dstStride0, int order, int object
#define LU_COM_ARGS_P srcPointers, srcShift, srcStride0, pivotIndex, dstPointers, dstShift, dstStride0, order, object

extern "C" {
VORM_LAYER VormStatus n8_ownvormLUDecomp_32f_S_com(LU_COM_PARAMS_S(float));
VORM_LAYER VormStatus n8_ownvormLUDecomp_64f_S_com(LU_COM_PARAMS_S(double));
VORM_LAYER VormStatus n8_ownvormLUDecomp_32f_S2_com(LU_COM_PARAMS_S2(float));
VORM_LAYER VormStatus n8_ownvormLUDecomp_64f_S2_com(LU_COM_PARAMS_S2(double));
VORM_LAYER VormStatus n8_ownvormLUDecomp_32f_P_com(LU_COM_PARAMS_P(float));
VORM_LAYER VormStatus n8_ownvormLUDecomp_64f_P_com(LU_COM_PARAMS_P(double));
}

namespace vorm {

template <class T>
using LuDecompMLayer = VormStatus(LU_DECOMP_M_PARAMS(T));
template <class T>
using LuDecompMLayerP = VormStatus(LU_DECOMP_M_PARAMS_P(T));
template <class T>
using LuDecompMaLayer = VormStatus(LU_DECOMP_MA_PARAMS(T));
template <class T>
using LuDecompMaLayerL = VormStatus(LU_DECOMP_MA_PARAMS_L(T));
template <class T>
using LuDecompMaLayerP = VormStatus(LU_DECOMP_MA_PARAMS_P(T));
template <class T>
using LuComS = VormStatus(LU_COM_PARAMS_S(T));
template <class T>
using LuComS2 = VormStatus(LU_COM_PARAMS_S2(T));
template <class T>
using LuComP = VormStatus(LU_COM_PARAMS_P(T));

// order order count; from here on a team
constexpr int luDecompWork(int order, int count) { return wrapMul(order, order, count); }
constexpr int luDecompTeamFrom = 1001;

// Public layers. ----------------------------------------------------------------------------------

template <class T>
VORM_INLINE VormStatus luDecompMChecked(LuDecompMLayer<T>* kernel, LuDecompMLayer<T>* kernelS2, LU_DECOMP_M_PARAMS(T))
{
    if (anyNull(src, dst, pivotIndex)) return StatusNullPointer;
    if (order < 1) return StatusBadSize;
    if (anyBadStride<T>(srcStride1, srcStride2, dstStride1, dstStride2)) return StatusBadStride;

    if (contiguous<T>(srcStride2, dstStride2)) return kernel(LU_DECOMP_M_ARGS);
    return kernelS2(LU_DECOMP_M_ARGS);
}

template <class T>
VORM_INLINE VormStatus luDecompMCheckedP(LuDecompMLayerP<T>* kernel, LU_DECOMP_M_PARAMS_P(T))
{
    if (anyNull(srcPointers, dstPointers, pivotIndex)) return StatusNullPointer;
    if (order < 1) return StatusBadSize;
    if (anyBadShift<T>(srcShift, dstShift)) return StatusBadShift;

    return kernel(LU_DECOMP_M_ARGS_P);
}

template <class T>
VORM_INLINE VormStatus luDecompMaChecked(LuDecompMaLayer<T>* driver, LuDecompMaLayer<T>* kernel,
                                         LuDecompMaLayer<T>* kernelS2, LU_DECOMP_MA_PARAMS(T))
{
    if (anyNull(src, dst, pivotIndex)) return StatusNullPointer;
    if (count < 1) return StatusBadCount;
    if (order < 1) return StatusBadSize;
    if (anyBadStride<T>(srcStride0, srcStride1, srcStride2, dstStride0, dstStride1, dstStride2)) return StatusBadStride;

    if (luDecompWork(order, count) >= luDecompTeamFrom) return driver(LU_DECOMP_MA_ARGS);
    if (contiguous<T>(srcStride2, dstStride2)) return kernel(LU_DECOMP_MA_ARGS);
    return kernelS2(LU_DECOMP_MA_ARGS);
}

template <class T>
VORM_INLINE VormStatus luDecompMaCheckedL(LuDecompMaLayerL<T>* driver, LuDecompMaLayerL<T>* kernel,
                                          LuDecompMaLayerL<T>* kernelS2, LU_DECOMP_MA_PARAMS_L(T))
{
    if (anyNull(srcList, dstList, pivotIndex)) return StatusNullPointer;
    if (count < 1) return StatusBadCount;
    if (order < 1) return StatusBadSize;
    if (anyBadStride<T>(srcStride1, srcStride2, dstStride1, dstStride2)) return StatusBadStride;
    if (anyBadShift<T>(srcShift, dstShift)) return StatusBadShift;

    if (luDecompWork(order, count) >= luDecompTeamFrom) return driver(LU_DECOMP_MA_ARGS_L);
    if (contiguous<T>(srcStride2, dstStride2)) return kernel(LU_DECOMP_MA_ARGS_L);
    return kernelS2(LU_DECOMP_MA_ARGS_L);
}

template <class T>
VORM_INLINE VormStatus luDecompMaCheckedP(LuDecompMaLayerP<T>* driver, LuDecompMaLayerP<T>* kernel,
                                          LU_DECOMP_MA_PARAMS_P(T))
{
    if (anyNull(srcPointers, dstPointers, pivotIndex)) return StatusNullPointer;
    if (count < 1) return StatusBadCount;
    if (order < 1) return StatusBadSize;
    if (anyBadStride<T>(srcStride0, dstStride0)) return StatusBadStride;
    if (anyBadShift<T>(srcShift, dstShift)) return StatusBadShift;

    if (luDecompWork(order, count) >= luDecompTeamFrom) return driver(LU_DECOMP_MA_ARGS_P);
    return kernel(LU_DECOMP_MA_ARGS_P);
}

// Drivers. The row numbers advance with the objects in every layout. -----------------------------------

template <class T>
VORM_INLINE VormStatus luDecompMaTeam(LuDecompMaLayer<T>* contiguousKernel, LuDecompMaLayer<T>* kernelS2,
                                      LU_DECOMP_MA_PARAMS(T))
{
    auto* const kernel = contiguous<T>(srcStride2, dstStride2) ? contiguousKernel : kernelS2;
    return inTeam<Kernels::canFail>(count, [=](const Chunk& chunk) {
        return kernel(advance(src, wrapMul(chunk.first, srcStride0)), srcStride0, srcStride1, srcStride2,
                      pivotIndex + wrapMul(chunk.first, order), advance(dst, wrapMul(chunk.first, dstStride0)),
                      dstStride0, dstStride1, dstStride2, order, chunk.objects);
    });
}

template <class T>
VORM_INLINE VormStatus luDecompMaTeamL(LuDecompMaLayerL<T>* contiguousKernel, LuDecompMaLayerL<T>* kernelS2,
                                       LU_DECOMP_MA_PARAMS_L(T))
{
    auto* const kernel = contiguous<T>(srcStride2, dstStride2) ? contiguousKernel : kernelS2;
    return inTeam<Kernels::canFail>(count, [=](const Chunk& chunk) {
        return kernel(srcList + chunk.first, srcShift, srcStride1, srcStride2, pivotIndex + wrapMul(chunk.first, order),
                      dstList + chunk.first, dstShift, dstStride1, dstStride2, order, chunk.objects);
    });
}

template <class T>
VORM_INLINE VormStatus luDecompMaTeamP(LuDecompMaLayerP<T>* kernel, LU_DECOMP_MA_PARAMS_P(T))
{
    return inTeam<Kernels::canFail>(count, [=](const Chunk& chunk) {
        return kernel(srcPointers, wrapAdd(srcShift, wrapMul(chunk.first, srcStride0)), srcStride0,
                      pivotIndex + wrapMul(chunk.first, order), dstPointers,
                      wrapAdd(dstShift, wrapMul(chunk.first, dstStride0)), dstStride0, order, chunk.objects);
    });
}

// Kernels. ----------------------------------------------------------------------------------------

// The order's code is chosen once; general(n) does object n of any other order.
template <class T, class Src, class Dst, class General>
VORM_INLINE VormStatus luDecompArray(const Src& src, const Dst& dst, int* pivotIndex, int order, int count,
                                     const General& general)
{
    switch (order) {
    case 3: return luArray<3, T>(src, dst, pivotIndex, count);
    case 4: return luArray<4, T>(src, dst, pivotIndex, count);
    case 5: return luArray<5, T>(src, dst, pivotIndex, count);
    case 6: return luArray<6, T>(src, dst, pivotIndex, count);
    default: return luArray<T>(src, dst, pivotIndex, order, count, general);
    }
}

template <class T, class Src, class Dst, class General>
VORM_INLINE VormStatus luDecompSingle(const Src& src, const Dst& dst, int* pivotIndex, int order,
                                      const General& general)
{
    switch (order) {
    case 3: return luObjects<3, T>(src, dst, 0, pivotIndex);
    case 4: return luObjects<4, T>(src, dst, 0, pivotIndex);
    case 5: return luObjects<5, T>(src, dst, 0, pivotIndex);
    case 6: return luObjects<6, T>(src, dst, 0, pivotIndex);
    default: return general();
    }
}

template <class T>
VORM_INLINE VormStatus luDecompMContiguous(LuComS<T>* general, LU_DECOMP_M_PARAMS(T))
{
    return luDecompSingle<T>(Matrix{src, srcStride1, adjacent}, Matrix{dst, dstStride1, adjacent}, pivotIndex, order,
                             [&] { return general(src, srcStride1, pivotIndex, dst, dstStride1, order); });
}

template <class T>
VORM_INLINE VormStatus luDecompMAnyStride(LuComS2<T>* general, LU_DECOMP_M_PARAMS(T))
{
    return luDecompSingle<T>(Matrix{src, srcStride1, srcStride2}, Matrix{dst, dstStride1, dstStride2}, pivotIndex,
                             order, [&] { return general(LU_DECOMP_M_ARGS); });
}

template <class T>
VORM_INLINE VormStatus luDecompMPointers(LuComP<T>* general, LU_DECOMP_M_PARAMS_P(T))
{
    return luDecompSingle<T>(
        MatrixPointers{srcPointers, srcShift, order}, MatrixPointers{dstPointers, dstShift, order}, pivotIndex, order,
        [&] { return general(srcPointers, srcShift, 0, pivotIndex, dstPointers, dstShift, 0, order, 0); });
}

// Array kernels over the views of the standard or of the list layout.
template <class T, class Src, class Dst>
VORM_INLINE VormStatus luDecompMaContiguous(LuComS<T>* general, const Src& src, const Dst& dst, int* pivotIndex,
                                            int order, int count)
{
    return luDecompArray<T>(src, dst, pivotIndex, order, count, [&](int n) {
        return general(src.object(n), src.stride1, pivotIndex + std::ptrdiff_t{n} * order, dst.object(n), dst.stride1,
                       order);
    });
}
template <class T, class Src, class Dst>
VORM_INLINE VormStatus luDecompMaAnyStride(LuComS2<T>* general, const Src& src, const Dst& dst, int* pivotIndex,
                                           int order, int count)
{
    return luDecompArray<T>(src, dst, pivotIndex, order, count, [&](int n) {
        return general(src.object(n), src.stride1, src.stride2, pivotIndex + std::ptrdiff_t{n} * order, dst.object(n),
                       dst.stride1, dst.stride2, order);
    });
}

template <class T>
VORM_INLINE VormStatus luDecompMaContiguous(LuComS<T>* general, LU_DECOMP_MA_PARAMS(T))
{
    return luDecompMaContiguous<T>(general, MatrixArray{src, srcStride0, srcStride1, adjacent},
                                   MatrixArray{dst, dstStride0, dstStride1, adjacent}, pivotIndex, order, count);
}
template <class T>
VORM_INLINE VormStatus luDecompMaContiguousL(LuComS<T>* general, LU_DECOMP_MA_PARAMS_L(T))
{
    return luDecompMaContiguous<T>(general, MatrixList{srcList, srcShift, srcStride1, adjacent},
                                   MatrixList{dstList, dstShift, dstStride1, adjacent}, pivotIndex, order, count);
}
template <class T>
VORM_INLINE VormStatus luDecompMaAnyStride(LuComS2<T>* general, LU_DECOMP_MA_PARAMS(T))
{
    return luDecompMaAnyStride<T>(general, MatrixArray{src, srcStride0, srcStride1, srcStride2},
                                  MatrixArray{dst, dstStride0, dstStride1, dstStride2}, pivotIndex, order, count);
}
template <class T>
VORM_INLINE VormStatus luDecompMaAnyStrideL(LuComS2<T>* general, LU_DECOMP_MA_PARAMS_L(T))
{
    return luDecompMaAnyStride<T>(general, MatrixList{srcList, srcShift, srcStride1, srcStride2},
                                  MatrixList{dstList, dstShift, dstStride1, dstStride2}, pivotIndex, order, count);
}

template <class T>
VORM_INLINE VormStatus luDecompMaPointers(LuComP<T>* general, LU_DECOMP_MA_PARAMS_P(T))
{
    const MatrixArrayPointers srcs{srcPointers, srcShift, srcStride0, order};
    const MatrixArrayPointers dsts{dstPointers, dstShift, dstStride0, order};
    const auto single = [&](int n) {
        return general(srcPointers, srcShift, srcStride0, pivotIndex + std::ptrdiff_t{n} * order, dstPointers, dstShift,
                       dstStride0, order, n);
    };
    if (order <= bufferedOrder && inPlanes(srcs) && storableAsPlanes(dsts, order, order, count))
        return luDecompArray<T>(asPlanes(srcs), asPlanes(dsts), pivotIndex, order, count, single);
    return luDecompArray<T>(srcs, dsts, pivotIndex, order, count, single);
}

// The general routines. -----------------------------------------------------------------------------

template <class T>
VORM_INLINE VormStatus luComS(LU_COM_PARAMS_S(T))
{
    return luGeneral<T>(Matrix{src, srcStride1, adjacent}, Matrix{dst, dstStride1, adjacent}, 0, order, pivotIndex);
}
template <class T>
VORM_INLINE VormStatus luComS2(LU_COM_PARAMS_S2(T))
{
    return luGeneral<T>(Matrix{src, srcStride1, srcStride2}, Matrix{dst, dstStride1, dstStride2}, 0, order, pivotIndex);
}
template <class T>
VORM_INLINE VormStatus luComP(LU_COM_PARAMS_P(T))
{
    return luGeneral<T>(MatrixArrayPointers{srcPointers, srcShift, srcStride0, order},
                        MatrixArrayPointers{dstPointers, dstShift, dstStride0, order}, object, order, pivotIndex);
}

}  // namespace vorm
