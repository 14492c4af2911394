// Inverses of small orders over a number type: by cofactors, and by steps of elimination down to order 4. They work in
// place, say whether all objects passed, and leave nothing of use where one did not.
#pragma once

#include "factor/det/det_minors.hpp"
#include "factor/lu/lu_elimination.hpp"

namespace vorm::factor {

// From the processor's estimate and one step of refinement, or by a true division.
enum class Reciprocals { estimated, exact };
template <Reciprocals reciprocals, class Number>
VORM_INLINE Number reciprocalOf(Number x)
{
    if constexpr (reciprocals == Reciprocals::exact) {
        return Number(Element<Number>(1)) / x;
    } else {
        const Number e = estimateReciprocal(x);
        return (e + e) - (x * e) * e;
    }
}

// The minor without row i and column j: rows above i over some columns times rows below i over the others, for
// every choice of columns in ascending order of their sets.
template <int i, int j, int n, class Number>
VORM_INLINE Number minorWithout(const Number (&above)[1 << n], const Number (&below)[1 << n])
{
    constexpr unsigned columns = ((1u << n) - 1) ^ 1u << j;
    if constexpr (i == 0) {
        return below[columns];
    } else if constexpr (i == n - 1) {
        return above[columns];
    } else {
        Number sum;
        unrolled<1 << n, 1>([&](auto set_) VORM_INLINE_LAMBDA {
            constexpr unsigned set = set_, first = (1u << i) - 1;
            if constexpr ((set & ~columns) == 0 && std::popcount(set) == i) {
                // The columns as numbers among those that are left; the first set has the lowest.
                constexpr unsigned among = (set & ((1u << j) - 1)) | (set >> (j + 1) << j);
                constexpr int exchanges = [] {
                    int moves = -i * (i - 1) / 2;
                    for (int k = 0; k < i; ++k) moves += columnOf(among, k);
                    return moves;
                }();
                const Number term = above[set] * below[columns ^ set];
                if constexpr (among == first)
                    sum = term;
                else if constexpr (exchanges % 2 == 0)
                    sum = sum + term;
                else
                    sum = sum - term;
            }
        });
        return sum;
    }
}

template <Reciprocals reciprocals, int n, class Number>
VORM_INLINE bool invertByCofactors(Number (&a)[n][n], Element<Number> threshold)
{
    Number above[1 << n], below[1 << n];
    minorsFromAbove<(n == 3 ? 2 : n)>(a, above);
    minorsFromBelow<n - 1>(a, below);
    Number det;
    if constexpr (n == 3)
        det = a[0][0] * minorWithout<0, 0, n>(above, below) - a[1][0] * minorWithout<1, 0, n>(above, below) +
              a[2][0] * minorWithout<2, 0, n>(above, below);
    else
        det = above[(1 << n) - 1];
    if (any(abs(det) < Number(threshold))) return false;
    const Number r = reciprocalOf<reciprocals>(det), minusR = -r;
    unrolled<n>([&](auto i) VORM_INLINE_LAMBDA {
        unrolled<n>([&](auto j) VORM_INLINE_LAMBDA {
            a[j][i] = minorWithout<i, j, n>(above, below) * ((i + j) % 2 == 0 ? r : minusR);
        });
    });
    return true;
}

// With the pivot row on top the matrix is (x, x u; c, d), and its inverse (1/x - u l, -u m; l, m), m being the inverse
// of d - c u and l = -m c / x.
template <Reciprocals reciprocals, int n, class Number>
VORM_INLINE bool invertInSteps(Number (&a)[n][n], Element<Number> threshold)
{
    if constexpr (n == 4) {
        return invertByCofactors<reciprocals>(a, threshold);
    } else {
        Pivot<n, Number> pivot;
        pivot.template find<0>([&](int i) VORM_INLINE_LAMBDA { return a[i][0]; });
        if (any(pivot.magnitude < Number(threshold))) return false;
        for (int c = 0; c < n; ++c)
            pivot.template exchange<0>([&](int i) VORM_INLINE_LAMBDA -> Number& { return a[i][c]; });
        const Number reciprocal = reciprocalOf<reciprocals>(a[0][0]);
        Number top[n - 1], left[n - 1], rest[n - 1][n - 1];
        for (int c = 0; c < n - 1; ++c) top[c] = a[0][c + 1] * reciprocal;
        for (int r = 0; r < n - 1; ++r) {
            left[r] = a[r + 1][0];
            for (int c = 0; c < n - 1; ++c) rest[r][c] = a[r + 1][c + 1] - left[r] * top[c];
        }
        if (!invertInSteps<reciprocals>(rest, threshold)) return false;
        const auto sum = [](const auto& term) VORM_INLINE_LAMBDA {
            Number total = term(0);
            for (int k = 1; k < n - 1; ++k) total = total + term(k);
            return total;
        };
        const Number minus = -reciprocal;
        for (int r = 0; r < n - 1; ++r) {
            a[r + 1][0] = sum([&](int k) VORM_INLINE_LAMBDA { return rest[r][k] * left[k]; }) * minus;
            for (int c = 0; c < n - 1; ++c) a[r + 1][c + 1] = rest[r][c];
        }
        for (int c = 0; c < n - 1; ++c)
            a[0][c + 1] = -sum([&](int k) VORM_INLINE_LAMBDA { return top[k] * rest[k][c]; });
        a[0][0] = reciprocal - sum([&](int k) VORM_INLINE_LAMBDA { return top[k] * a[k + 1][0]; });
        for (int r = 0; r < n; ++r)
            pivot.template exchange<0>([&](int c) VORM_INLINE_LAMBDA -> Number& { return a[r][c]; });
        return true;
    }
}

}  // namespace vorm::factor
