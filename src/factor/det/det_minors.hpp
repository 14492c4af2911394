// Minors of neighbouring rows for every choice of columns, over a number type: minors[set] is that of the columns
// whose bits are in set, of as many rows as it has columns. Each is an expansion along its last or its
// first row, over the minors of one row less.
#pragma once

#include <bit>

#include "frame/lanes.hpp"
#include "frame/unrolled.hpp"

namespace vorm::factor {

// The k-th column of a set.
constexpr int columnOf(unsigned set, int k)
{
    for (; k > 0; --k) set &= set - 1;
    return std::countr_zero(set);
}

// Calls term(c) for the first column and minus(c), plus(c), ... for those behind it.
template <unsigned set, bool fromLast, class First, class Plus, class Minus>
VORM_INLINE auto alternating(const First& first, const Plus& plus, const Minus& minus)
{
    constexpr int size = std::popcount(set);
    const auto column = [](auto k) VORM_INLINE_LAMBDA {
        return constant<columnOf(set, fromLast ? size - 1 - int{k} : int{k})>;
    };
    auto sum = first(column(constant<0>));
    unrolled<size, 1>([&](auto k) VORM_INLINE_LAMBDA {
        if constexpr (k % 2 == 1)
            sum = minus(sum, column(k));
        else
            sum = plus(sum, column(k));
    });
    return sum;
}

// Of row 0 on, up to so many rows: along the last row, from its last column.
template <int rows, int n, class Number>
VORM_INLINE void minorsFromAbove(const Number (&a)[n][n], Number (&minors)[1 << n])
{
    unrolled<1 << n, 1>([&](auto set_) VORM_INLINE_LAMBDA {
        constexpr unsigned set = set_;
        constexpr int size = std::popcount(set), row = size - 1;
        const auto term = [&](auto c) VORM_INLINE_LAMBDA { return minors[set ^ 1u << int{c}] * a[row][c]; };
        if constexpr (size == 1)
            minors[set] = a[0][columnOf(set, 0)];
        else if constexpr (size <= rows)
            minors[set] = alternating<set, true>(
                term, [&](const Number& sum, auto c) VORM_INLINE_LAMBDA { return sum + term(c); },
                [&](const Number& sum, auto c) VORM_INLINE_LAMBDA { return sum - term(c); });
    });
}

// Of the last rows, up to so many: along the first row, from its first column.
template <int rows, int n, class Number>
VORM_INLINE void minorsFromBelow(const Number (&a)[n][n], Number (&minors)[1 << n])
{
    unrolled<1 << n, 1>([&](auto set_) VORM_INLINE_LAMBDA {
        constexpr unsigned set = set_;
        constexpr int size = std::popcount(set), row = n - size;
        const auto term = [&](auto c) VORM_INLINE_LAMBDA { return minors[set ^ 1u << int{c}] * a[row][c]; };
        if constexpr (size == 1)
            minors[set] = a[n - 1][columnOf(set, 0)];
        else if constexpr (size <= rows)
            minors[set] = alternating<set, false>(
                term, [&](const Number& sum, auto c) VORM_INLINE_LAMBDA { return sum + term(c); },
                [&](const Number& sum, auto c) VORM_INLINE_LAMBDA { return sum - term(c); });
    });
}

}  // namespace vorm::factor
