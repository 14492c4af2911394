// Determinants over a number type: the small orders in registers, each by its own formula.
#pragma once

#include "factor/det/det_elimination.hpp"
#include "factor/det/det_minors.hpp"

namespace vorm::factor {

// Orders 1 and 2 are eliminations, without a product of less than two pivots.
template <class Number>
VORM_INLINE Number determinantHere(const Number (&a)[1][1])
{
    return where(abs(a[0][0]) > Number(detThreshold<Element<Number>>(1)), a[0][0]);
}
template <class Number>
VORM_INLINE Number determinantHere(const Number (&a)[2][2])
{
    const Number threshold = detThreshold<Element<Number>>(2);
    const auto exchanged = abs(a[1][0]) > abs(a[0][0]);
    const auto upper = [&](int c) VORM_INLINE_LAMBDA { return select(exchanged, a[1][c], a[0][c]); };
    const auto lower = [&](int c) VORM_INLINE_LAMBDA { return select(exchanged, a[0][c], a[1][c]); };
    const Number pivot = upper(0), last = lower(1) - upper(1) * (lower(0) / pivot);
    const Number det = select(exchanged, -last, last) * pivot;
    return where(without(abs(last) > threshold, abs(pivot) < threshold), det);
}
template <int n, class Number>
VORM_INLINE Number determinantHere(const Number (&a)[n][n])
{
    Number minors[1 << n];
    minorsFromAbove<n>(a, minors);
    return minors[(1 << n) - 1];
}
// The same compiled once, in det_blocks.cpp.
template <int n, class Number>
VORM_HIDDEN Number determinant(const Number (&a)[n][n]);

// As many objects as a number holds.
template <int n, class Number, class Src>
VORM_INLINE Number determinantOf(const Src& src, int first)
{
    Number a[n][n];
    loadMatrices(src, first, a);
    if constexpr (n <= 2 || (inLanes<Number> && n <= 4 && (isAdjacent<Src> || isInPlanes<Src>)))
        return determinantHere(a);
    else
        return determinant(a);
}

}  // namespace vorm::factor
