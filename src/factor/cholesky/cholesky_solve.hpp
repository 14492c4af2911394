// Substitution with the factor of a Cholesky decomposition, L L' x = b, of the orders 3 to 6: one object, a register of
// objects or two.
#pragma once

#include "factor/cholesky/cholesky_triangle.hpp"
#include "factor/right_sides.hpp"
#include "frame/blocks.hpp"
#include "frame/pin.hpp"

namespace vorm::factor {

// l(i, j) is the factor with reciprocals on its diagonal; x holds b before, the solution after.
template <int n, class Number, class Factor>
VORM_INLINE void choleskySubstitute(const Factor& l, Number (&x)[n])
{
    unrolled<n>([&](auto j) VORM_INLINE_LAMBDA {
        x[j] = x[j] * l(j, j);
        unrolled<n, j + 1>([&](auto i) VORM_INLINE_LAMBDA { x[i] = x[i] - l(i, j) * x[j]; });
    });
    unrolled<n>([&](auto below) VORM_INLINE_LAMBDA {
        constexpr int i = n - 1 - below;
        unrolled<n, i + 1>([&](auto j) VORM_INLINE_LAMBDA { x[i] = x[i] - l(j, i) * x[j]; });
        x[i] = x[i] * l(i, i);
    });
}

// Vectors with their own matrices. All of b is read before the first element is written.
template <int n, class Number, class M, class B, class X>
VORM_INLINE VormStatus choleskySolveObjects(const M& matrix, const B& b, const X& dst, int first)
{
    Number a[n * n], x[n];
    loadTriangles(matrix, first, constant<n>, a);
    loadVectors(b, first, x, constant<n>);
    choleskySubstitute([&](int i, int j) VORM_INLINE_LAMBDA { return a[i * n + j]; }, x);
    storeVectors(dst, first, x, constant<n>);
    return StatusOk;
}

// A function of its own, as choleskyArray is.
template <class T, class M, class B, class X, int n>
VORM_SHARED void choleskySolvePairs(const M factor, const B b, const X dst, std::integral_constant<int, n>, int count)
{
    const auto& matrix = withColumns<n>(factor);
    inBlocks<std::conditional_t<isAdjacent<M> || isInPlanes<M>, Wide<T>, T>>(
        dst, 1, n, count, [&]<class Number>(int first) VORM_INLINE_LAMBDA {
            return choleskySolveObjects<n, Number>(matrix, b, dst, first);
        });
}

// All vectors with one matrix, which is loaded once. Single vectors run in lanes too, all of them the same. A function
// of its own, as choleskyArray is.
template <int n, class L, class M, class B, class X>
VORM_SHARED void choleskySolveVectorsIn(const M matrix, const B b, const X dst, int count)
{
    using T = Element<L>;
    constexpr bool whole = isAdjacent<B> || isInPlanes<B>;
    L loaded[n * n];
    for (int i = 0; i < n; ++i)
        for (int j = 0; j <= i; ++j) loaded[i * n + j] = T(matrix(0, i, j));
    // In registers all of it would be too much, and the unknowns evicted for it: the compiler is to take it for memory
    // that a store might change.
    const L* const factor = n > 3 ? opaque(static_cast<const L*>(loaded)) : loaded;
    // What is gathered goes through memory, where its loads wait for its stores: more at once.
    using Widest = Several<L, whole ? 2 : 4>;
    inBlocks<Widest>(dst, 1, n, count, [&]<class Number>(int first) VORM_INLINE_LAMBDA {
        using Unknown = std::conditional_t<inLanes<Number>, Number, Lanes<T>>;
        Unknown x[n];
        if constexpr (inLanes<Number>)
            loadVectors(b, first, x, constant<n>);
        else
            for (int i = 0; i < n; ++i) x[i] = T(b(first, i));
        choleskySubstitute([&](int i, int j) VORM_INLINE_LAMBDA { return narrowed<Unknown>(factor[i * n + j]); }, x);
        if constexpr (inLanes<Number>)
            storeVectors(dst, first, x, constant<n>);
        else
            for (int i = 0; i < n; ++i) dst(first, i) = firstLane(x[i]);
        return StatusOk;
    });
}

template <class T, class M, class B, class X, int n>
VORM_INLINE void choleskySolveVectors(const M& matrix, const B& b, const X& dst, std::integral_constant<int, n>,
                                      int count)
{
    inRegistersThatPay<WidestOfVectors<n, T, B>>(
        count, [&]<class L>() VORM_INLINE_LAMBDA { choleskySolveVectorsIn<n, L>(matrix, b, dst, count); });
}

}  // namespace vorm::factor
