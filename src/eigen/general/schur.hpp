// The real Schur form M = Q T Q' of a general matrix: reduction to Hessenberg form by reflections, then double-shift
// sweeps until everything below the diagonal has vanished but for 2x2 blocks of complex pairs. Golub, Van Loan: Matrix
// Computations, sections 7.4 and 7.5. An element below the diagonal vanishes when it is at most ulp, an absolute
// number: no norm and no neighbour is looked at.
//
// Everything is stored by columns, M(i, j) at m[j * n + i]. A source copied there by rows is transposed by it:
//   M = A',  A = Q T' Q',
// so that the right vectors of A are the left ones of M. With T' z = lambda z a right vector of A is Q z, and with
// T z = lambda z a left one is the conjugate of Q z.
#pragma once

#include "eigen/general/rounded.hpp"
#include "eigen/general/standard_form.hpp"
#include "vorm/status.h"

namespace vorm::eigen {

template <class T>
struct Columns {
    T* p;
    int n;
    VORM_INLINE T& operator()(int i, int j) const { return p[std::ptrdiff_t{j} * n + i]; }
    VORM_INLINE T* column(int j) const { return p + std::ptrdiff_t{j} * n; }
};

// Reduction. -----------------------------------------------------------------------------------------------------

// Rows k + 1 to n of a column through the reflection that column k keeps, in the lanes where it is one.
template <class Number, class Mask>
VORM_INLINE void reflectColumn(const Number* v, const Number& tau, const Mask& isTurned, Number* column, int k, int n)
{
    Number sum = column[k + 1];
    for (int r = k + 2; r < n; ++r) sum = sum + v[r] * column[r];
    const Number factor = where(isTurned, tau * sum);
    column[k + 1] = column[k + 1] - factor;
    for (int r = k + 2; r < n; ++r) column[r] = column[r] - v[r] * factor;
}

// Column k keeps what is left of its reflection's v below the subdiagonal, and tau[k] its factor; where it is not above
// tiny nothing was turned. work holds n numbers.
template <class Number>
VORM_INLINE void hessenberg(Number* matrix, int n, Number* tau, Number* work)
{
    const Columns<Number> m{matrix, n};
    for (int k = 0; k < n - 2; ++k) {
        Number* const v = m.column(k);  // from k + 1 on
        Number sum = v[k + 2] * v[k + 2];
        for (int i = k + 3; i < n; ++i) sum = sum + v[i] * v[i];
        const Reflection<Number> reflection = reflectionOf(v[k + 1], sqrt(sum));
        const auto isTurned = abs(reflection.tau) > Number(tiny<Element<Number>>);
        for (int i = k + 2; i < n; ++i) v[i] = where(isTurned, v[i] * reflection.scale);
        v[k + 1] = reflection.beta;
        tau[k] = reflection.tau;
        if (!any(isTurned)) continue;

        const Number* const first = m.column(k + 1);
        for (int r = 0; r < n; ++r) work[r] = first[r];
        for (int c = k + 2; c < n; ++c) {
            const Number* const column = m.column(c);
            for (int r = 0; r < n; ++r) work[r] = work[r] + column[r] * v[c];
        }
        if constexpr (inLanes<Number>)
            for (int r = 0; r < n; ++r) work[r] = where(isTurned, work[r]);
        for (int c = k + 1; c < n; ++c) {
            Number* const column = m.column(c);
            const Number factor = where(isTurned, c == k + 1 ? reflection.tau : reflection.tau * v[c]);
            for (int r = 0; r < n; ++r) column[r] = column[r] - work[r] * factor;
        }
        for (int c = k + 1; c < n; ++c) reflectColumn(v, reflection.tau, isTurned, m.column(c), k, n);
    }
}

// The product of the reflections of a reduction.
template <class Number>
VORM_INLINE void formTransformation(const Number* matrix, const Number* tau, int n, Number* transformation)
{
    using T = Element<Number>;
    const Columns<const Number> m{matrix, n};
    const Columns<Number> q{transformation, n};
    for (int c = 0; c < n; ++c)
        for (int r = 0; r < n; ++r) q(r, c) = Number(r == c ? T(1) : T(0));
    for (int k = n - 3; k >= 0; --k) {
        const auto isTurned = abs(tau[k]) > Number(tiny<T>);
        if (!any(isTurned)) continue;
        for (int c = k + 1; c < n; ++c) reflectColumn(m.column(k), tau[k], isTurned, q.column(c), k, n);
    }
}

// What a reduction leaves below the subdiagonal.
template <class Number>
VORM_INLINE void clearBelowSubdiagonal(Number* matrix, int n)
{
    for (int c = 0; c < n - 2; ++c)
        for (int r = c + 2; r < n; ++r) matrix[std::ptrdiff_t{c} * n + r] = Number(Element<Number>(0));
}

// Iteration. -----------------------------------------------------------------------------------------------------

// The last 2x2 block's part in the shifts: the two values on the diagonal, and the product beside it.
template <class Number>
struct Shifts {
    Number h44, h33, h43h34;
};
// A real pair is replaced by the value nearer to zero of the two that the block's elements tell apart, taken twice.
template <class Number>
VORM_INLINE Shifts<Number> shiftsOf(const Number& h44, const Number& h33, const Number& h43h34)
{
    using T = Element<Number>;
    const Number zero(T(0)), half(T(0.5));
    const Number apart = (h33 - h44) * half;
    const Number disc = apart * apart + h43h34;
    const auto real = disc > zero;
    if (!any(real)) return {h44, h33, h43h34};
    const Number root = sqrt(disc), mean = half * (h33 + h44);
    const Number sum = select(mean < zero, -root, root) + mean;
    const auto other = (abs(h33) - abs(h44)) > zero;
    const Number twice = select(other, (h33 * h44 - h43h34) / sum, sum);
    return {select(real, twice, h44), select(real, twice, h33), select(real, zero, h43h34)};
}
template <class Number>
VORM_INLINE Shifts<Number> exceptionalShifts(const Number& lastDiagonal, const Number& last, const Number& beforeLast)
{
    using T = Element<Number>;
    const Number s = abs(last) + abs(beforeLast);
    const Number h = Number(T(0.75)) * s + lastDiagonal;
    return {h, h, Number(T(-0.4375)) * s * s};
}

// The first column of the shifted product, from the elements at the corner where a sweep might start.
template <class Number>
struct Start {
    Number q1, q2, q3;
};
template <class Number>
VORM_INLINE Start<Number> startAt(const Shifts<Number>& shifts, const Number& h11, const Number& h21, const Number& h12,
                                  const Number& h22, const Number& h32)
{
    const Number h44s = shifts.h44 - h11, h33s = shifts.h33 - h11;
    const Number q1 = (h33s * h44s - shifts.h43h34) / h21 + h12;
    const Number q2 = h22 - h11 - h33s - h44s;
    const Number s = abs(q1) + abs(q2) + abs(h32);
    return {q1 / s, q2 / s, h32 / s};
}
// Whether the element before the corner is small enough for the sweep to start there.
template <class Number>
VORM_INLINE auto startsHere(const Start<Number>& q, const Number& h00, const Number& h11, const Number& h22,
                            const Number& before)
{
    return Number(ulp<Element<Number>>) * abs(q.q1) * (abs(h00) + abs(h11) + abs(h22)) >=
           abs(before) * (abs(q.q2) + abs(q.q3));
}

// A sweep's reflection of two or three rows or columns.
template <class T>
struct Factors {
    T v2, v3, t1, t2, t3;
    VORM_INLINE void turn(T& x, T& y, T& z) const
    {
        const T sum = x + v2 * y + v3 * z;
        x = x - sum * t1;
        y = y - sum * t2;
        z = z - sum * t3;
    }
    VORM_INLINE void turn(T& x, T& y) const
    {
        const T sum = x + v2 * y;
        x = x - sum * t1;
        y = y - sum * t2;
    }
};

// Rows from to end - 1 of columns k, k + 1 and, of three, k + 2. A compiler would look each time whether they overlap.
template <class T>
VORM_INLINE void turnColumns(const Columns<T>& m, const Factors<T>& factors, int k, bool three, int from, int end)
{
    using L = Lanes<T>;
    T *const x = m.column(k), *const y = m.column(k + 1), *const z = m.column(k + 1 + three);
    const Factors<L> inLanes{factors.v2, factors.v3, factors.t1, factors.t2, factors.t3};
    int r = from;
    if (three) {
        for (; r + L::width <= end; r += L::width) {
            L a = L::load(x + r), b = L::load(y + r), c = L::load(z + r);
            inLanes.turn(a, b, c);
            a.store(x + r), b.store(y + r), c.store(z + r);
        }
        for (; r < end; ++r) factors.turn(x[r], y[r], z[r]);
    } else {
        for (; r + L::width <= end; r += L::width) {
            L a = L::load(x + r), b = L::load(y + r);
            inLanes.turn(a, b);
            a.store(x + r), b.store(y + r);
        }
        for (; r < end; ++r) factors.turn(x[r], y[r]);
    }
}

// Where the iteration stands: what is being split off ends at last, the block in question starts at first.
template <class T>
struct Active {
    int first, last;
};

template <bool keeps, class T>
VORM_INLINE void sweep(const Columns<T>& m, const Columns<T>& q, Active<T> active, bool exceptional)
{
    const int first = active.first, last = active.last, n = m.n;
    const Shifts<T> shifts =
        exceptional ? exceptionalShifts(m(last, last), m(last, last - 1), m(last - 1, last - 2))
                    : shiftsOf(m(last, last), m(last - 1, last - 1), m(last, last - 1) * m(last - 1, last));
    int start = last - 2;
    Start<T> x;
    for (;; --start) {
        x = startAt(shifts, m(start, start), m(start + 1, start), m(start, start + 1), m(start + 1, start + 1),
                    m(start + 2, start + 1));
        if (start == first ||
            startsHere(x, m(start - 1, start - 1), m(start, start), m(start + 1, start + 1), m(start, start - 1)))
            break;
    }

    for (int k = start; k < last; ++k) {
        const bool three = k + 2 <= last;
        if (k > start) x = {m(k, k - 1), m(k + 1, k - 1), three ? m(k + 2, k - 1) : T(0)};
        const T sum = three ? x.q2 * x.q2 + x.q3 * x.q3 : x.q2 * x.q2;
        const Reflection<T> reflection = reflectionOf(x.q1, sqrt(sum));
        const T v2 = x.q2 * reflection.scale, v3 = x.q3 * reflection.scale;
        if (k > start) {
            m(k, k - 1) = reflection.beta;
            m(k + 1, k - 1) = T(0);
            if (three) m(k + 2, k - 1) = T(0);
        } else if (start > first) {
            m(k, k - 1) = -m(k, k - 1);
        }
        const Factors<T> factors{v2, v3, reflection.tau, reflection.tau * v2, reflection.tau * v3};
        for (int c = k; c < (keeps ? n : last + 1); ++c) {
            T* const rows = m.column(c) + k;
            if (three)
                factors.turn(rows[0], rows[1], rows[2]);
            else
                factors.turn(rows[0], rows[1]);
        }
        turnColumns(m, factors, k, three, keeps ? 0 : first, (k + 3 < last ? k + 3 : last) + 1);
        if constexpr (keeps) turnColumns(q, factors, k, three, 0, n);
    }
}

// The pair at last - 1 and last leaves: its block in standard form. M(i, j) is m(i, j).
template <bool keeps, class M>
VORM_INLINE auto leavePair(const M& m, const M& q, int n, int last)
{
    using T = std::remove_cvref_t<decltype(m(0, 0))>;
    const int other = last - 1;
    Block<T> block{m(other, other), m(other, last), m(last, other), m(last, last)};
    const Turn<T> turn = standardise<keeps>(block);
    if constexpr (keeps) {
        const auto rotate = [&](T& x, T& y) VORM_INLINE_LAMBDA {
            const T turned = rounded(turn.cs * x) + rounded(turn.sn * y);
            y = rounded(turn.cs * y) - rounded(turn.sn * x);
            x = turned;
        };
        for (int c = last + 1; c < n; ++c) rotate(m(other, c), m(last, c));
        for (int r = 0; r < other; ++r) rotate(m(r, other), m(r, last));
        for (int r = 0; r < n; ++r) rotate(q(r, other), q(r, last));
        m(other, other) = block.a;
        m(other, last) = block.b;
        m(last, other) = block.c;
        m(last, last) = block.d;
    }
    return block;
}

// From a Hessenberg matrix, with zeros below the subdiagonal, to the values re + i im, which leave from the last to the
// first; with keeps also to the Schur form, and q is multiplied from the right. Returns how many values have not left,
// and are not written, when the budget of sweeps is spent.
template <bool keeps, class T>
int iterate(T* matrix, T* transformation, int n, T* re, T* im)
{
    const Columns<T> m{matrix, n}, q{transformation, n};
    int budget = 30 * n;
    for (int last = n - 1; last >= 0;) {
        int first = 0, sweeps = 0;
        for (; sweeps < budget; ++sweeps) {
            int k = last;
            while (k > first && !(abs(m(k, k - 1)) <= ulp<T>)) --k;
            first = k;
            if (first > 0) m(first, first - 1) = T(0);
            if (first >= last - 1) break;
            sweep<keeps>(m, q, Active<T>{first, last}, sweeps == 10 || sweeps == 20);
        }
        if (first < last - 1) return last + 1;
        if (first == last) {
            re[last] = m(last, last);
            im[last] = T(0);
        } else {
            const Block<T> block = leavePair<keeps>(m, q, n, last);
            re[first] = block.a;
            re[last] = block.d;
            im[first] = imaginaryOf(block);
            im[last] = conjugateOf(block, im[first]);
        }
        budget -= sweeps;
        last = first - 1;
    }
    return 0;
}

// Of the matrix stored by columns in t the Schur form T, the transformation q, and the values. work holds 2 n elements.
// Returns how many values have not left, as iterate does; where there are any t and q are half way.
template <class T>
int schurForm(T* t, T* q, T* work, int n, T* re, T* im)
{
    hessenberg(t, n, work, work + n);
    formTransformation(t, work, n, q);
    clearBelowSubdiagonal(t, n);
    return iterate<true>(t, q, n, re, im);
}

}  // namespace vorm::eigen
