// The elimination of the orders 3 to 6 over a number type, one object or a register of them.
#pragma once

#include <type_traits>
#include <utility>

#include "frame/lanes.hpp"
#include "frame/unrolled.hpp"

namespace vorm::factor {

// One object or a register of them: matrices in logical row order, and the source row each row came from,
// whose number in lanes is bits that are only moved.
template <int n, class Number>
struct LuBlock {
    Number a[n][n];
    std::conditional_t<inLanes<Number>, Number, int> rows[n];
};

// A pivot below this is singular: 2^-125 and 2^-1021. Single precision orders the magnitudes as
// double precision would, denormals and NaN included, since widening is exact.
template <class T>
constexpr T tiny = sizeof(T) == sizeof(float) ? T(0x1p-125) : T(0x1p-1021);

// A row number, as the lanes of objects have it.
template <class Number>
VORM_INLINE void number(Number& to, int row)
{
    if constexpr (std::is_same_v<Number, int>)
        to = row;
    else
        to = Number::integer(row);
}

// 1 / pivot, whose division need not wait for the pivot: the sign is all that the magnitude lacks.
template <class T, int W>
VORM_INLINE Lanes<T, W> reciprocalOf(Lanes<T, W> pivot, Lanes<T, W> magnitude)
{
    return timesSignOf(Lanes<T, W>(T(1)) / magnitude, pivot);
}

// The pivots of step k, the first of the largest magnitudes of a column from row k on: finds them and lets row k and
// the pivot row change places. element(i) is what is to move of row i.
template <int n, class Number>
struct Pivot {
    int row = 0;
    Number magnitude;
    template <int k, class Element>
    VORM_INLINE void find(const Element& element)
    {
        row = k, magnitude = abs(element(k));
        for (int i = k + 1; i < n; ++i)
            if (const Number other = abs(element(i)); other > magnitude) magnitude = other, row = i;
    }
    template <int k, class Element>
    VORM_INLINE void exchange(const Element& element) const
    {
        std::swap(element(k), element(row));
    }
    VORM_INLINE Number reciprocal(Number pivot) const { return 1 / pivot; }
};

// Lane by lane, without a branch or an address that depends on the pivots: every row is looked at, and
// changes places in the lanes whose pivot it is.
template <int n, class T, int W>
struct Pivot<n, Lanes<T, W>> {
    using Number = Lanes<T, W>;
    typename Number::Mask is[n];
    Number magnitude;
    template <int k, class Element>
    VORM_INLINE void find(const Element& element)
    {
        magnitude = abs(element(k));
        for (int i = k + 1; i < n; ++i) {
            const Number other = abs(element(i));
            is[i] = other > magnitude;
            magnitude = larger(other, magnitude);
        }
        auto later = is[n - 1];  // the last one to displace the largest is the pivot
        for (int i = n - 2; i > k; --i) {
            const auto own = is[i];
            is[i] = without(own, later);
            later = later | own;
        }
    }
    template <int k, class Element>
    VORM_INLINE void exchange(const Element& element) const
    {
        const Number top = element(k);
        Number changes;
        for (int i = k + 1; i < n; ++i) {
            const Number change = difference(is[i], top, element(i));
            element(i) = changed(element(i), change);
            changes = i == k + 1 ? change : united(changes, change);
        }
        element(k) = changed(top, changes);
    }
    VORM_INLINE Number reciprocal(Number pivot) const { return reciprocalOf(pivot, magnitude); }
};

// Factorises a block in place, until a pivot is singular in any of its objects. Returns how many rows
// have passed; these are final. Multipliers are products with a reciprocal, only the last one is a quotient.
// A column is exchanged and eliminated at a time, while the masks and multipliers stay in registers.
// With rowsStay a block that passes has its rows where they were: multipliers are left out of later exchanges, and
// every column goes back through those it took part in.
template <bool rowsStay, int n, class Number>
VORM_INLINE int luFactoriseHere(LuBlock<n, Number>& lu)
{
    auto& a = lu.a;
    for (int r = 0; r < n; ++r) number(lu.rows[r], r);
    Pivot<n, Number> pivots[n - 1];
    int passed = 0;
    const auto passes = [&](Number magnitude) VORM_INLINE_LAMBDA {
        if (any(magnitude < Number(tiny<Element<Number>>))) return false;
        ++passed;
        return true;
    };
    const auto exchangeColumn = [&](auto k, int c) VORM_INLINE_LAMBDA {
        pivots[k].template exchange<k>([&](int i) VORM_INLINE_LAMBDA -> Number& { return a[i][c]; });
    };
    const auto restoreColumn = [&](auto last, int c) VORM_INLINE_LAMBDA {
        unrolled<last + 1>([&](auto done)
                               VORM_INLINE_LAMBDA { exchangeColumn(std::integral_constant<int, last - done>{}, c); });
    };
    const auto step = [&](auto k) VORM_INLINE_LAMBDA {
        auto& pivot = pivots[k];
        pivot.template find<k>([&](int i) VORM_INLINE_LAMBDA { return a[i][k]; });
        // While the division, which takes longest, is under way.
        const auto exchangeRest = [&]() VORM_INLINE_LAMBDA {
            pivot.template exchange<k>([&](int i) VORM_INLINE_LAMBDA -> auto& { return lu.rows[i]; });
            if constexpr (!rowsStay)
                for (int c = 0; c < k; ++c) exchangeColumn(k, c);
        };
        exchangeColumn(k, k);
        Number factors[n];
        if (!passes(pivot.magnitude)) {
            exchangeRest();
            return false;
        }
        if constexpr (k < n - 2) {
            const Number reciprocal = pivot.reciprocal(a[k][k]);
            exchangeRest();
            for (int i = k + 1; i < n; ++i) factors[i] = a[i][k] * reciprocal;
        } else {
            factors[n - 1] = a[n - 1][k] / a[k][k];
            exchangeRest();
        }
        for (int i = k + 1; i < n; ++i) a[i][k] = factors[i];
        if constexpr (rowsStay) restoreColumn(k, k);
        for (int c = k + 1; c < n; ++c) {
            exchangeColumn(k, c);
            for (int i = k + 1; i < n; ++i) a[i][c] = a[i][c] - a[k][c] * factors[i];
        }
        return true;
    };
    const bool whole = [&]<int... k>(std::integer_sequence<int, k...>) VORM_INLINE_LAMBDA
    {
        return (... && step(std::integral_constant<int, k>{})) && passes(abs(a[n - 1][n - 1]));
    }
    (std::make_integer_sequence<int, n - 1>{});
    if (rowsStay && whole) restoreColumn(std::integral_constant<int, n - 2>{}, n - 1);
    return passed;
}

}  // namespace vorm::factor
