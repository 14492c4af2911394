// The kernels of vormLUBackSubst over the parts of a call: the factors, the row numbers, right-hand side, solution,
// order.
#pragma once

#include "factor/lu/lu_back_subst.hpp"
#include "factor/lu/lu_solve_general.hpp"

namespace vorm::factor {

// The order's code is chosen once, outside the loop over the objects.
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

template <class T, class M, class B, class X>
VORM_INLINE VormStatus luSolveArray(const M& matrix, const int* pivotIndex, const B& b, const X& dst, int order,
                                    int count)
{
    if constexpr (M::isCommon)
        return luMvaKernel<T>(matrix, pivotIndex, b, dst, order, count);
    else
        return luMavaKernel<T>(matrix, pivotIndex, b, dst, order, count);
}

template <class T, class TheTests, class Parts>
VORM_INLINE VormStatus anyStrideKernel(const Call<T, TheTests, Parts>& call)
{
    return call.parts.with([](const auto& matrix, const auto& pivots, const auto& b, const auto& x, Size order)
                               VORM_INLINE_LAMBDA { return luMvKernel<T>(matrix, pivots.p, b, x, order.value); });
}
template <class T, class TheTests, class Parts>
VORM_INLINE VormStatus anyStrideKernel(const ArrayCall<T, TheTests, Parts>& call)
{
    return call.parts.with(
        [](const auto& matrix, const auto& pivots, const auto& b, const auto& x, Size order, Count count)
            VORM_INLINE_LAMBDA { return luSolveArray<T>(matrix, pivots.p, b, x, order.value, count.value); });
}
template <class AnyCall>
VORM_INLINE VormStatus contiguousKernel(const AnyCall& call)
{
    return anyStrideKernel(withAdjacent(call));
}

template <class T, class TheTests, class Parts>
VORM_INLINE VormStatus pointerKernel(const ArrayCall<T, TheTests, Parts>& call)
{
    return call.parts.with([](const auto& matrix, const auto& pivots, const auto& b, const auto& x, Size order,
                              Count count) VORM_INLINE_LAMBDA {
        if (order.value <= bufferedOrder && inPlanes(matrix) && inPlanes(b) &&
            storableAsPlanes(x, order.value, 1, count.value))
            return luSolveArray<T>(asPlanes(matrix), pivots.p, asPlanes(b), asPlanes(x), order.value, count.value);
        return luSolveArray<T>(matrix, pivots.p, b, x, order.value, count.value);
    });
}

}  // namespace vorm::factor
