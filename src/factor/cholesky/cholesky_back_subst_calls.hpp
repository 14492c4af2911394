// The kernels of vormCholeskyBackSubst over the parts of a call: the factor, right-hand side, solution, order.
#pragma once

#include "factor/cholesky/cholesky_back_subst.hpp"
#include "factor/cholesky/cholesky_solve_general.hpp"

namespace vorm::factor {

template <class T, class TheTests, class Parts>
VORM_INLINE VormStatus anyStrideKernel(const Call<T, TheTests, Parts>& call)
{
    return call.parts.with([](const auto& matrix, const auto& b, const auto& x, Size order) VORM_INLINE_LAMBDA {
        switch (order.value) {
        case 3: choleskySolveObjects<3, T>(matrix, b, x, 0); break;
        case 4: choleskySolveObjects<4, T>(matrix, b, x, 0); break;
        case 5: choleskySolveObjects<5, T>(matrix, b, x, 0); break;
        case 6: choleskySolveObjects<6, T>(matrix, b, x, 0); break;
        default: choleskySolveGeneral<T>(matrix, b, x, 0, order.value);
        }
        return VormStatus{StatusOk};
    });
}

// The order's code is chosen once, outside the loop over the objects.
template <class T, class M, class B, class X>
VORM_INLINE VormStatus choleskySolveArray(const M& matrix, const B& b, const X& x, int order, int count)
{
    const auto solve = [&](auto n) VORM_INLINE_LAMBDA {
        if constexpr (M::isCommon)
            choleskySolveVectors<T>(matrix, b, x, n, count);
        else
            choleskySolvePairs<T>(matrix, b, x, n, count);
    };
    switch (order) {
    case 3: solve(constant<3>); break;
    case 4: solve(constant<4>); break;
    case 5: solve(constant<5>); break;
    case 6: solve(constant<6>); break;
    default: solve(order);
    }
    return StatusOk;
}
template <class T, class TheTests, class Parts>
VORM_INLINE VormStatus anyStrideKernel(const ArrayCall<T, TheTests, Parts>& call)
{
    return call.parts.with(
        [](const auto& matrix, const auto& b, const auto& x, Size order, Count count)
            VORM_INLINE_LAMBDA { return choleskySolveArray<T>(matrix, b, x, order.value, count.value); });
}

template <class AnyCall>
VORM_INLINE VormStatus contiguousKernel(const AnyCall& call)
{
    return anyStrideKernel(withAdjacent(call));
}

template <class T, class TheTests, class Parts>
VORM_INLINE VormStatus pointerKernel(const ArrayCall<T, TheTests, Parts>& call)
{
    return call.parts.with(
        [](const auto& matrix, const auto& b, const auto& x, Size order, Count count) VORM_INLINE_LAMBDA {
            if (order.value <= bufferedOrder && inPlanes(matrix) && inPlanes(b) &&
                storableAsPlanes(x, order.value, 1, count.value))
                return choleskySolveArray<T>(asPlanes(matrix), asPlanes(b), asPlanes(x), order.value, count.value);
            return choleskySolveArray<T>(matrix, b, x, order.value, count.value);
        });
}

}  // namespace vorm::factor
