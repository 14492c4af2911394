// The elimination of the orders 3 to 6 over a number type, one object or a register of them.
#pragma once

#include <type_traits>
#include <utility>

#include "frame/lanes.hpp"
#include "frame/unrolled.hpp"

namespace vorm {

// One object or a register of them: matrices in logical row order, and the source row each row came from,
// whose number in lanes is bits that are only moved.
template <int n, class Number>
struct LuBlock {
    Number a[n][n];
    std::conditional_t<std::is_arithmetic_v<Number>, int, Number> rows[n];
};

// A pivot below this is singular: 2^-125 and 2^-1021. Single precision orders the magnitudes as
// double precision would, denormals and NaN included, since widening is exact.
template <class T>
constexpr T tiny = sizeof(T) == sizeof(float) ? T(0x1p-125) : T(0x1p-1021);
template <class T>
VORM_INLINE T tinyFor(T)
{
    return tiny<T>;
}
template <class T>
VORM_INLINE Lanes<T> tinyFor(Lanes<T>)
{
    return tiny<T>;
}

inline __m128 both(__m128 a, __m128 b) { return _mm_and_ps(a, b); }
inline __m128d both(__m128d a, __m128d b) { return _mm_and_pd(a, b); }
inline __m128 either(__m128 a, __m128 b) { return _mm_or_ps(a, b); }
inline __m128d either(__m128d a, __m128d b) { return _mm_or_pd(a, b); }
inline __m128 differing(__m128 a, __m128 b) { return _mm_xor_ps(a, b); }
inline __m128d differing(__m128d a, __m128d b) { return _mm_xor_pd(a, b); }
inline __m128 without(__m128 a, __m128 b) { return _mm_andnot_ps(b, a); }
inline __m128d without(__m128d a, __m128d b) { return _mm_andnot_pd(b, a); }
inline __m128i bitsOf(__m128 a) { return _mm_castps_si128(a); }
inline __m128i bitsOf(__m128d a) { return _mm_castpd_si128(a); }

// Row numbers in lanes, as bits.
template <class T>
VORM_INLINE Lanes<T> rowNumber(int r)
{
    if constexpr (Lanes<T>::width == 4)
        return _mm_castsi128_ps(_mm_set1_epi32(r));
    else
        return _mm_castsi128_pd(_mm_set1_epi64x(r));
}
template <class T>
VORM_INLINE Lanes<T> numbered(Lanes<T>, int r)
{
    return rowNumber<T>(r);
}
VORM_INLINE int numbered(int, int r) { return r; }

// 1 / pivot, whose division need not wait for the pivot: the sign is all that the magnitude lacks.
template <class T>
VORM_INLINE Lanes<T> reciprocalOf(Lanes<T> pivot, Lanes<T> magnitude)
{
    return timesSignOf(Lanes<T>(T(1)) / magnitude, pivot);
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
template <int n, class T>
struct Pivot<n, Lanes<T>> {
    using Bits = decltype(LaneMask<T>::bits);
    Bits is[n];
    Lanes<T> magnitude;
    template <int k, class Element>
    VORM_INLINE void find(const Element& element)
    {
        magnitude = abs(element(k));
        for (int i = k + 1; i < n; ++i) {
            const Lanes<T> other = abs(element(i));
            is[i] = (other > magnitude).bits;
            magnitude = larger(other, magnitude);
        }
        Bits later = is[n - 1];  // the last one to displace the largest is the pivot
        for (int i = n - 2; i > k; --i) {
            const Bits own = is[i];
            is[i] = without(own, later);
            later = either(later, own);
        }
    }
    template <int k, class Element>
    VORM_INLINE void exchange(const Element& element) const
    {
        const auto top = element(k).v;
        auto changes = differing(top, top);
        for (int i = k + 1; i < n; ++i) {
            const auto change = both(is[i], differing(top, element(i).v));
            element(i) = differing(element(i).v, change);
            changes = i == k + 1 ? change : either(changes, change);
        }
        element(k) = differing(top, changes);
    }
    VORM_INLINE Lanes<T> reciprocal(Lanes<T> pivot) const { return reciprocalOf(pivot, magnitude); }
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
    for (int r = 0; r < n; ++r) lu.rows[r] = numbered(lu.rows[r], r);
    Pivot<n, Number> pivots[n - 1];
    int passed = 0;
    const auto passes = [&](Number magnitude) VORM_INLINE_LAMBDA {
        if (any(magnitude < tinyFor(magnitude))) return false;
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

}  // namespace vorm
