// Eigenvectors from the real Schur form M = Q T Q' of schur.hpp: substitution with scaling, carried back with Q and
// brought to length 1.
//
// Golub, Van Loan: Matrix Computations, section 7.6.4; the scaling as in E. Anderson, Robust triangular solves for use
// in condition estimation (LAPACK working note 36, 1991).
//
// Both sides are solved by one forward substitution with a lower matrix L: T transposed for the right vectors of the
// matrix that M is the transpose of, T read from its last element backward for the left ones.
#pragma once

#include <cstddef>
#include <type_traits>

#include "eigen/general/block_solve.hpp"
#include "eigen/general/reflection.hpp"

namespace vorm::eigen {

enum class Side { right, left };

// Element (i, k) of L, and the column that belongs to place k of the substitution.
template <Side side, class T>
struct Lower {
    const T* t;
    int n;
    VORM_INLINE T operator()(int i, int k) const
    {
        if constexpr (side == Side::right)
            return t[std::ptrdiff_t{i} * n + k];
        else
            return t[std::ptrdiff_t{n - 1 - k} * n + (n - 1 - i)];
    }
    VORM_INLINE int column(int k) const { return side == Side::right ? k : n - 1 - k; }
    // Whether a diagonal block of order 2 begins here.
    VORM_INLINE bool isBlock(int k) const { return k + 1 < n && (*this)(k, k + 1) != 0; }
};

// (L - lambda) z = 0, of which z[first] is given, or z[first] and z[first + 1] where they belong to a pair, and the
// rest is found. norms[k - 1] is the sum of the magnitudes of row k before the diagonal. False where a diagonal block
// cannot be divided by.
template <class Number, class T, class L>
VORM_INLINE bool substitute(const L& l, int first, int given, Lambda<Number> lambda, const T* norms, Number* z)
{
    const int n = l.n;
    const T smallest = T(n) * (tiny<T> / ulp<T>), largest = (1 - ulp<T>) / smallest;
    const T leastDivisor = larger(ulp<T> * lambda.size(), smallest);
    const auto shrink = [&](int end, T factor) VORM_INLINE_LAMBDA {
        if (factor != 1)
            for (int k = first; k < end; ++k) z[k] = z[k] * factor;
    };
    const auto rightSide = [&](int row, int end) VORM_INLINE_LAMBDA {
        Number sum = z[first] * l(row, first);
        for (int k = first + 1; k < end; ++k) sum = sum + z[k] * l(row, k);
        return -sum;
    };
    T most = 1, scale = 1;  // the largest magnitude so far
    for (int k = first + given; k < n;) {
        const bool isBlock = l.isBlock(k);
        if (larger(norms[k - 1], isBlock ? norms[k] : T(0)) * most > largest) shrink(k, 1 / most), most = 1;
        if (!isBlock) {
            const Number x = solveElement(lambda.from(l(k, k)), rightSide(k, k), leastDivisor, scale);
            shrink(k, scale);
            z[k] = x;
            most = larger(magnitude(x), most);
            ++k;
            continue;
        }
        const Number block[4] = {lambda.from(l(k, k)), lambda.number(l(k + 1, k)), lambda.number(l(k, k + 1)),
                                 lambda.from(l(k + 1, k + 1))};
        Number x[2] = {rightSide(k, k), rightSide(k + 1, k)};
        if (!solveBlock(block, x, leastDivisor, scale)) return false;
        shrink(k, scale);
        z[k] = x[0], z[k + 1] = x[1];
        most = larger(larger(magnitude(x[0]), magnitude(x[1])), most);
        k += 2;
    }
    return true;
}

// Vectors of length 1. -------------------------------------------------------------------------------------------

// The sum of the squares of all elements given. Where it is too large for a number the elements are divided by the
// largest of their magnitudes first. It is never small: of each solution something is 1 or more.
template <class T, int vectors>
VORM_INLINE T sumOfSquares(T* const (&x)[vectors], int n)
{
    const auto sum = [&]() VORM_INLINE_LAMBDA {
        T s = 0;
        for (int i = 0; i < n; ++i)
            for (T* const one : x) s += one[i] * one[i];
        return s;
    };
    const T s = sum();
    if (s <= std::numeric_limits<T>::max()) return s;
    T most = 0;
    for (int i = 0; i < n; ++i)
        for (T* const one : x) most = larger(abs(one[i]), most);
    if (!(most > 0 && most <= std::numeric_limits<T>::max())) return s;
    for (int i = 0; i < n; ++i)
        for (T* const one : x) one[i] /= most;
    return sum();
}
template <class T>
VORM_INLINE void normaliseReal(T* x, int n)
{
    const T s = sumOfSquares({x}, n);
    if (!(s > tiny<T>)) return;
    const T factor = 1 / sqrt(s);
    for (int i = 0; i < n; ++i) x[i] *= factor;
}
// The pair u + i w, turned so that the first of its largest components is real.
template <class T>
VORM_INLINE void normalisePair(T* u, T* w, int n)
{
    const T factor = 1 / sqrt(sumOfSquares({u, w}, n));
    T most = 0;
    int place = 0;
    for (int i = 0; i < n; ++i) {
        u[i] *= factor, w[i] *= factor;
        const T square = u[i] * u[i] + w[i] * w[i];
        if (square > most) most = square, place = i;
    }
    const T r = sqrt(most);
    T c = u[place] / r, s = w[place] / r;
    if (abs(u[place]) > abs(w[place]) && c < 0) c = -c, s = -s;
    for (int i = 0; i < n; ++i) {
        const T turned = rounded(c * u[i]) + rounded(s * w[i]);
        w[i] = rounded(c * w[i]) - rounded(s * u[i]);
        u[i] = turned;
    }
    w[place] = 0;
}

// All of them. -----------------------------------------------------------------------------------------------------

// In vectors, which holds Q by columns, every column is replaced by the vector of its value, or by a part of it. A
// place of the substitution needs no column before it. work holds 3 n - 1 elements.
template <Side side, class T>
VORM_INLINE bool schurVectors(const T* t, T* vectors, T* work, int n)
{
    const Lower<side, T> l{t, n};
    T* const norms = work;
    const auto column = [&](int k) VORM_INLINE_LAMBDA { return vectors + std::ptrdiff_t{l.column(k)} * n; };
    for (int k = 1; k < n; ++k) {
        norms[k - 1] = 0;
        for (int i = 0; i < k; ++i) norms[k - 1] += abs(l(k, i));
    }
    for (int k = 0; k < n;) {
        if (!l.isBlock(k)) {
            T* const z = work + n - 1;
            z[k] = 1;
            if (!substitute(l, k, 1, Lambda<T>{l(k, k)}, norms, z)) return false;
            T* const x = column(k);
            if (z[k] != 1)  // made smaller on the way
                for (int r = 0; r < n; ++r) x[r] *= z[k];
            for (int i = k + 1; i < n; ++i) {
                const T* const q = column(i);
                for (int r = 0; r < n; ++r) x[r] += z[i] * q[r];
            }
            normaliseReal(x, n);
            ++k;
            continue;
        }
        const T b = l(k + 1, k), c = l(k, k + 1), im = sqrt(abs(b)) * sqrt(abs(c));
        const T ownIm = side == Side::right ? im : -im;
        auto* const z = reinterpret_cast<Complex<T>*>(work + n - 1);
        if (abs(b) >= abs(c))
            z[k] = {-ownIm / b, 0}, z[k + 1] = {0, 1};
        else
            z[k] = {1, 0}, z[k + 1] = {0, ownIm / c};
        if (!substitute(l, k, 2, Lambda<Complex<T>>{l(k, k), ownIm}, norms, z)) return false;
        T *const x = column(k), *const y = column(k + 1);
        T *const u = side == Side::right ? x : y, *const w = side == Side::right ? y : x;
        for (int r = 0; r < n; ++r) {
            const T one = x[r], other = y[r];
            u[r] = z[k].re * one + z[k + 1].re * other;
            w[r] = z[k].im * one + z[k + 1].im * other;
        }
        for (int i = k + 2; i < n; ++i) {
            const T* const q = column(i);
            for (int r = 0; r < n; ++r) u[r] += z[i].re * q[r], w[r] += z[i].im * q[r];
        }
        normalisePair(u, w, n);
        k += 2;
    }
    return true;
}

}  // namespace vorm::eigen
