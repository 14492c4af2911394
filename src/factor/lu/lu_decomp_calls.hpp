// The kernels of vormLUDecomp over the parts of a call: the source, the row numbers, the destination, the order.
#pragma once

#include "factor/lu/lu.hpp"
#include "factor/lu/lu_decomp.hpp"

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

namespace vorm::factor {

template <class T>
using LuComP = VormStatus(LU_COM_PARAMS_P(T));

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

// One matrix; general is the routine for other orders, with the arguments of the parts.
template <class T, class TheTests, class Parts, class General>
VORM_INLINE VormStatus anyStrideKernel(const Call<T, TheTests, Parts>& call, General* general)
{
    return call.parts.with([&](const auto& src, const auto& pivots, const auto& dst, Size order) VORM_INLINE_LAMBDA {
        return luDecompSingle<T>(src, dst, pivots.p, order.value,
                                 [&]() VORM_INLINE_LAMBDA { return withArguments(general, src, pivots, dst, order); });
    });
}
template <class T, class TheTests, class Parts, class General>
VORM_INLINE VormStatus contiguousKernel(const Call<T, TheTests, Parts>& call, General* general)
{
    return anyStrideKernel(withAdjacent(call), general);
}
template <class T, class TheTests, class Parts>
VORM_INLINE VormStatus pointerKernel(const Call<T, TheTests, Parts>& call, LuComP<T>* general)
{
    return call.parts.with([&](const auto& src, const auto& pivots, const auto& dst, Size order) VORM_INLINE_LAMBDA {
        return luDecompSingle<T>(src, dst, pivots.p, order.value, [&]() VORM_INLINE_LAMBDA {
            return general(src.pp, src.shift, 0, pivots.p, dst.pp, dst.shift, 0, order.value, 0);
        });
    });
}

// Arrays of matrices.
template <class T, class TheTests, class Parts, class General>
VORM_INLINE VormStatus anyStrideKernel(const ArrayCall<T, TheTests, Parts>& call, General* general)
{
    return call.parts.with(
        [&](const auto& src, const auto& pivots, const auto& dst, Size order, Count count) VORM_INLINE_LAMBDA {
            return luDecompArray<T>(src, dst, pivots.p, order.value, count.value, [&](int n) {
                return withArguments(general, src.single(n), pivots.single(n), dst.single(n), order);
            });
        });
}
template <class T, class TheTests, class Parts, class General>
VORM_INLINE VormStatus contiguousKernel(const ArrayCall<T, TheTests, Parts>& call, General* general)
{
    return anyStrideKernel(withAdjacent(call), general);
}
template <class T, class TheTests, class Parts>
VORM_INLINE VormStatus pointerKernel(const ArrayCall<T, TheTests, Parts>& call, LuComP<T>* general)
{
    return call.parts.with(
        [&](const auto& src, const auto& pivots, const auto& dst, Size order, Count count) VORM_INLINE_LAMBDA {
            const auto single = [&](int n) {
                return general(src.pp, src.shift, src.stride0, pivots.object(n), dst.pp, dst.shift, dst.stride0,
                               order.value, n);
            };
            if (order.value <= bufferedOrder && inPlanes(src) &&
                storableAsPlanes(dst, order.value, order.value, count.objects()))
                return luDecompArray<T>(asPlanes(src), asPlanes(dst), pivots.p, order.value, count.value, single);
            return luDecompArray<T>(src, dst, pivots.p, order.value, count.value, single);
        });
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

}  // namespace vorm::factor
