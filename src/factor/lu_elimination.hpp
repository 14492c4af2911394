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
inline __m128 sameNumber(__m128 a, __m128 b)
{
    return _mm_castsi128_ps(_mm_cmpeq_epi32(_mm_castps_si128(a), _mm_castps_si128(b)));
}
inline __m128d sameNumber(__m128d a, __m128d b)  // in the lower halves
{
    const __m128i same = _mm_cmpeq_epi32(_mm_castpd_si128(a), _mm_castpd_si128(b));
    return _mm_castsi128_pd(_mm_shuffle_epi32(same, _MM_SHUFFLE(2, 2, 0, 0)));
}

// Larger, or what was the largest unless it is less: a NaN displaces nothing, and nothing displaces it.
inline __m128 largerOf(Lanes<float> magnitude, Lanes<float> largest) { return _mm_max_ps(magnitude.v, largest.v); }
inline __m128d largerOf(Lanes<double> magnitude, Lanes<double> largest) { return _mm_max_pd(magnitude.v, largest.v); }

// Finds the pivot of column k, the first of the largest magnitudes from row k on, and returns what lets row
// k and the pivot row change places: a function of the elements' place in each row.
template <int k, int n, class T>
VORM_INLINE auto exchangeWithPivot(const T (&a)[n][n])
{
    int p = k;
    for (int i = k + 1; i < n; ++i)
        if (abs(a[i][k]) > abs(a[p][k])) p = i;
    return [p](auto element) VORM_INLINE_LAMBDA { std::swap(element(k), element(p)); };
}
// Lane by lane, without a branch or an address that depends on the pivots: every row is looked at, and
// changes places in the lanes whose pivot it is.
template <int k, int n, class T>
VORM_INLINE auto exchangeWithPivot(const Lanes<T> (&a)[n][n])
{
    using Bits = decltype(LaneMask<T>::bits);
    Bits is[n];
    Lanes<T> largest = abs(a[k][k]);
    for (int i = k + 1; i < n; ++i) {
        const Lanes<T> magnitude = abs(a[i][k]);
        is[i] = (magnitude > largest).bits;
        largest = largerOf(magnitude, largest);
    }
    Bits later = is[n - 1];  // the last one to displace the largest is the pivot
    for (int i = n - 2; i > k; --i) {
        const Bits own = is[i];
        is[i] = both(own, differing(own, later));
        later = either(later, own);
    }
    return [is](auto element) VORM_INLINE_LAMBDA {
        const auto top = element(k).v;
        auto changes = differing(top, top);
        for (int i = k + 1; i < n; ++i) {
            const auto change = both(is[i], differing(top, element(i).v));
            element(i) = differing(element(i).v, change);
            changes = either(changes, change);
        }
        element(k) = differing(top, changes);
    };
}

// Factorises a block in place, until a pivot is singular in any of its objects. Returns how many rows
// have passed; these are final. Multipliers are products with a reciprocal, only the last one is a quotient.
// A column is exchanged and eliminated at a time, while the masks and multipliers stay in registers.
template <int n, class Number>
VORM_INLINE int luFactoriseHere(LuBlock<n, Number>& lu)
{
    auto& a = lu.a;
    for (int r = 0; r < n; ++r) lu.rows[r] = numbered(lu.rows[r], r);
    int passed = 0;
    const auto passes = [&](int k) VORM_INLINE_LAMBDA {
        if (any(abs(a[k][k]) < tinyFor(a[k][k]))) return false;
        ++passed;
        return true;
    };
    const auto step = [&](auto k) VORM_INLINE_LAMBDA {
        const auto exchange = exchangeWithPivot<k>(a);
        const auto exchangeColumn = [&](int c) VORM_INLINE_LAMBDA {
            exchange([&](int i) VORM_INLINE_LAMBDA -> Number& { return a[i][c]; });
        };
        exchange([&](int i) VORM_INLINE_LAMBDA -> auto& { return lu.rows[i]; });
        exchangeColumn(k);
        if (!passes(k)) return false;
        for (int c = 0; c < k; ++c) exchangeColumn(c);
        Number factors[n];
        if constexpr (k < n - 2) {
            const Number reciprocal = Number(1) / a[k][k];
            for (int i = k + 1; i < n; ++i) factors[i] = a[i][k] * reciprocal;
        } else {
            factors[n - 1] = a[n - 1][k] / a[k][k];
        }
        for (int i = k + 1; i < n; ++i) a[i][k] = factors[i];
        for (int c = k + 1; c < n; ++c) {
            exchangeColumn(c);
            for (int i = k + 1; i < n; ++i) a[i][c] = a[i][c] - a[k][c] * factors[i];
        }
        return true;
    };
    [&]<int... k>(std::integer_sequence<int, k...>) VORM_INLINE_LAMBDA
    {
        (void)((... && step(std::integral_constant<int, k>{})) && passes(n - 1));
    }
    (std::make_integer_sequence<int, n - 1>{});
    return passed;
}

}  // namespace vorm
