// Cholesky decomposition, A = L L', whose factor has 1 / L(i, i) on its diagonal: one object or lanes of objects at a
// time for the orders 3 to 6, lanes of objects in a buffer for others that are not too high, row by row in the
// destination for all others.
#pragma once

#include "factor/cholesky_general.hpp"
#include "factor/cholesky_triangle.hpp"
#include "frame/blocks.hpp"

namespace vorm::factor {

// Factorises a block in place, column by column, until an object turns out not to be positive definite. Returns how
// many columns have passed; what stands in them, and in the row behind them left of the diagonal, is final.
template <int n, class Number>
VORM_INLINE int choleskyFactoriseHere(Number (&a)[n * n])
{
    int passed = 0;
    const auto column = [&](auto j) VORM_INLINE_LAMBDA {
        const auto without = [&](auto i) VORM_INLINE_LAMBDA {
            Number value = a[i * n + j];
            for (int k = 0; k < j; ++k) value = value - a[i * n + k] * a[j * n + k];
            return value;
        };
        const Number t = without(j);
        if (anyNotPositive(t)) return false;
        const Number d = inverseRoot(t);
        unrolled<n, j + 1>([&](auto i) VORM_INLINE_LAMBDA { a[i * n + j] = without(i) * d; });
        a[j * n + j] = d;
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

// The same, compiled once, in cholesky_blocks.cpp.
template <int n, class Number>
VORM_HIDDEN int choleskyFactorise(Number (&a)[n * n]);

// As many objects of the orders 3 to 6 as a number holds.
template <int n, class Number, class Src, class Dst>
VORM_INLINE VormStatus choleskyObjects(const Src& src, const Dst& dst, int first)
{
    Number a[n * n];
    loadTriangles(src, first, constant<n>, a);
    if constexpr (!inLanes<Number>) {
        const int passed = choleskyFactorise<n>(a);
        const int behind = passed < n ? passed : 0;  // elements of the row that failed
        scatterTriangles(dst, first, 1, n, elementsOfTriangle(passed) + behind, a);
        return passed == n ? StatusOk : StatusNotPositiveDefinite;
    } else {
        constexpr bool here = n <= 4 && (isAdjacent<Src> || isInPlanes<Src>);
        if ((here ? choleskyFactoriseHere<n>(a) : choleskyFactorise<n>(a)) < n) return StatusNotPositiveDefinite;
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
VORM_SHARED VormStatus choleskyArray(const Src src, const Dst dst, int count)
{
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
