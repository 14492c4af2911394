// One step of the substitution with a quasi-triangular matrix L: (L - lambda) x = scale b for a diagonal block of L, of
// order 1 or 2. Number is that of the solution, real or complex as lambda is.
//
// A divisor below the least one that is allowed counts as the least one, and where a quotient would be too large the
// right-hand side is made smaller first, by scale.
#pragma once

#include <limits>

#include "eigen/general/complex_number.hpp"

namespace vorm::eigen {

template <class T>
constexpr T largestQuotient = 1 / (4 * std::numeric_limits<T>::min());  // 2^1020, 2^124

// An eigenvalue, to be subtracted from what stands on the diagonal.
template <class Number>
struct Lambda {
    Number re;
    VORM_INLINE Number from(Number a) const { return a - re; }
    VORM_INLINE Number size() const { return abs(re); }
    VORM_INLINE static Number number(Number a) { return a; }
};
template <class T>
struct Lambda<Complex<T>> {
    T re, im;
    VORM_INLINE Complex<T> from(T a) const { return {a - re, -im}; }
    VORM_INLINE T size() const { return abs(re) + abs(im); }
    VORM_INLINE static Complex<T> number(T a) { return {a, 0}; }
};

// The factor that keeps a right-hand side of this size, over such a divisor, from overflowing.
template <class T>
VORM_INLINE T scaleOf(T size, T divisor)
{
    const bool isTooLarge = divisor < 1 && size > 1 && size > largestQuotient<T> * divisor;
    return isTooLarge ? 1 / size : T(1);
}

template <class Number, class T>
VORM_INLINE Number solveElement(Number divisor, Number b, T leastDivisor, T& scale)
{
    if (magnitude(divisor) < leastDivisor) divisor = Lambda<Number>::number(leastDivisor);
    scale = scaleOf(magnitude(b), magnitude(divisor));
    return b * scale / divisor;
}

// The block is l[0] l[2], l[1] l[3]. Solved with complete pivoting: of its elements the pivot, the other one of its
// column, the other one of its row and the one across stand in the row of the table with the pivot's number. False
// where none is as large as the least divisor.
template <class Number, class T>
[[gnu::noinline]] bool solveBlock(const Number (&l)[4], Number (&x)[2], T leastDivisor, T& scale)
{
    static constexpr unsigned char order[4][4] = {{0, 1, 2, 3}, {1, 0, 3, 2}, {2, 3, 0, 1}, {3, 2, 1, 0}};
    int pivot = 0;
    for (int k = 1; k < 4; ++k)
        if (magnitude(l[k]) > magnitude(l[pivot])) pivot = k;
    const auto [own, below, beside, across] = order[pivot];
    const T most = magnitude(l[own]);
    if (most < leastDivisor) return false;

    const Number multiplier = l[below] / l[own];
    Number rest = l[across] - l[beside] * multiplier;
    if (magnitude(rest) < leastDivisor) rest = Lambda<Number>::number(leastDivisor);
    const int first = pivot & 1, second = 1 - first;  // rows
    const Number b1 = x[first], b2 = x[second] - multiplier * b1;
    const T one = magnitude(b1) * (magnitude(rest) / most), other = magnitude(b2);
    scale = scaleOf(one > other ? one : other, magnitude(rest));
    const Number x2 = b2 * scale / rest;
    const int column = pivot >> 1;
    x[column] = b1 * scale / l[own] - l[beside] / l[own] * x2;  // a product with an element might overflow
    x[1 - column] = x2;
    return true;
}

}  // namespace vorm::eigen
