// Cholesky decomposition, A = L L', whose factor has 1 / L(i, i) on its diagonal: one object or lanes of objects at a
// time for the orders 3 to 6, lanes of objects in a buffer for arrays of others that are not too high, and
// cholesky_general.hpp for all others.
#pragma once

#include "factor/cholesky/cholesky_general.hpp"
#include "factor/cholesky/cholesky_triangle.hpp"
#include "frame/blocks.hpp"

namespace vorm::factor {

// Factorises a block, column by column, until an object turns out not to be positive definite. a(i, j) is read once,
// when it is needed, and may lie in the place of the factor. Returns how many columns have passed; what stands in them,
// and in the row behind them left of the diagonal, is final.
template <int n, class Number, class Source>
VORM_INLINE int choleskyFactoriseHere(const Source& a, Number (&l)[n * n])
{
    int passed = 0;
    const auto column = [&](auto j) VORM_INLINE_LAMBDA {
        const auto without = [&](auto i) VORM_INLINE_LAMBDA {
            Number value = a(i, j);
            for (int k = 0; k < j; ++k) value = value - l[i * n + k] * l[j * n + k];
            return value;
        };
        const Number t = without(j);
        if (anyNotPositive(t)) return false;
        const Number d = inverseRoot(t);
        unrolled<n, j + 1>([&](auto i) VORM_INLINE_LAMBDA { l[i * n + j] = without(i) * d; });
        l[j * n + j] = d;
        ++passed;
        return true;
    };
    [&]<int... j>(std::integer_sequence<int, j...>) VORM_INLINE_LAMBDA
    {
        static_cast<void>((... && column(constant<j>)));
    }
    (std::make_integer_sequence<int, n>{});
    return passed;
}
template <int n, class Number>
VORM_INLINE int choleskyFactoriseHere(Number (&a)[n * n])
{
    return choleskyFactoriseHere<n>([&](int i, int j) VORM_INLINE_LAMBDA { return a[i * n + j]; }, a);
}

// The same in place, compiled once, in cholesky_blocks.cpp.
template <int n, class Number>
VORM_HIDDEN int choleskyFactorise(Number (&a)[n * n]);

// As many objects of the orders 3 to 6 as a number holds.
template <int n, class Number, class Src, class Dst>
VORM_INLINE VormStatus choleskyObjects(const Src& src, const Dst& dst, int first)
{
    Number a[n * n];
    if constexpr (!inLanes<Number>) {
        loadTriangles(src, first, constant<n>, a);
        const int passed = choleskyFactorise<n>(a);
        const int behind = passed < n ? passed : 0;  // elements of the row that failed
        scatterTriangles(dst, first, 1, n, elementsOfTriangle(passed) + behind, a);
        return passed == n ? StatusOk : StatusNotPositiveDefinite;
    } else {
        const auto passed = [&]() VORM_INLINE_LAMBDA {
            if constexpr (isInPlanes<Src>) {
                return choleskyFactoriseHere<n>(
                    [&](int i, int j) VORM_INLINE_LAMBDA { return Number::load(src.element(i, j) + first); }, a);
            } else {
                loadTriangles(src, first, constant<n>, a);
                return n <= 4 && isAdjacent<Src> ? choleskyFactoriseHere<n>(a) : choleskyFactorise<n>(a);
            }
        };
        if (passed() < n) return StatusNotPositiveDefinite;
        storeTriangles(dst, first, constant<n>, a);
        return StatusOk;
    }
}

// Objects of other orders in a buffer, in place; or finds that one of them is not positive definite.
template <class Number>
VORM_HIDDEN bool choleskyFactoriseBuffered(Number* a, int n);

// Two registers of objects where every column waits for the root and the division of the one before.
template <class T>
using CholeskyBuffered = std::conditional_t<sizeof(T) == sizeof(float), Wide<T>, Several<Wide<T>, 2>>;

// Arrays. Each order in a function of its own, with views of its own: in one for all of them most of what the loops
// need would lie in memory.
template <int n, class T, class Src, class Dst>
VORM_SHARED VormStatus choleskyArray(const Src anySrc, const Dst anyDst, int count)
{
    const auto& src = withColumns<n>(anySrc);
    const auto& dst = withColumns<n>(anyDst);
    using Widest = std::conditional_t<isAdjacent<Src> || isInPlanes<Src>, Wide<T>, Lanes<T>>;
    return inBlocks<Widest>(dst, n, n, count, [&]<class Number>(int first) VORM_INLINE_LAMBDA {
        return choleskyObjects<n, Number>(src, dst, first);
    });
}
template <class T, class Src, class Dst>
VORM_SHARED VormStatus choleskyArray(const Src src, const Dst dst, int n, int count)
{
    return inBlocks<CholeskyBuffered<T>>(
        count,
        [&]<class Number>(int first)
            VORM_INLINE_LAMBDA { return n <= bufferedOrder && registersApart<Number>(dst, first, n, n); },
        [&]<class Number>(int first) VORM_INLINE_LAMBDA {
            if constexpr (!inLanes<Number>) {
                return choleskyGeneral<T>(src, dst, first, n);
            } else {
                Number a[bufferedOrder * bufferedOrder];
                loadTriangles(src, first, n, a);
                if (!choleskyFactoriseBuffered(a, n)) return VormStatus{StatusNotPositiveDefinite};
                storeTriangles(dst, first, n, a);
                return VormStatus{StatusOk};
            }
        });
}

}  // namespace vorm::factor
