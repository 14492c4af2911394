// Householder reduction of a symmetric matrix to tridiagonal form, over a number type. The matrix is worked on as a
// whole: nothing is taken over from one of its triangles into the other.
#pragma once

#include "eigen/sym/side_by_side.hpp"

namespace vorm::eigen::sym {

// Thresholds are absolute, not scaled by the matrix.
template <class T>
constexpr T tolerance = sizeof(T) == sizeof(float) ? T(0x1p-23) : T(0x1p-52);

template <class Number>
using MaskOf = decltype(Number() < Number());
template <class Number>
VORM_INLINE MaskOf<Number> always()
{
    return Number(Element<Number>(0)) == Number(Element<Number>(0));
}

// One reflection, I - beta u u', of the elements behind k; it is left out where the mask is not set: there tau and u
// are +0, which changes no number.
template <class Number>
struct Reflection {
    const Number* u;
    Number beta;
    MaskOf<Number> taken;
    int k, n;

    // The numbers side by side in column c of the rows behind k; only the first last of them get a new value.
    template <class Some>
    VORM_INLINE void ofColumns(Number* a, int c, int end) const
    {
        const auto factor = [&](int i) VORM_INLINE_LAMBDA { return Some(Number(at(u, i))); };
        const auto element = [&](int i) VORM_INLINE_LAMBDA { return a + i * std::ptrdiff_t{n} + c; };
        const Some sum =
            pairedSum<Some>(k + 1, n, [&](int i) VORM_INLINE_LAMBDA { return loadSome<Some>(element(i)) * factor(i); });
        Some tau = Some(beta) * sum;
        if constexpr (inLanes<Number>) tau = where(taken, tau);
        for (int i = k + 1; i < end; ++i) storeSome(element(i), loadSome<Some>(element(i)) - tau * factor(i));
    }
    VORM_INLINE void ofColumns(Number* a, int first) const
    {
        along<Number>(first, n, [&]<class Some>(int c) VORM_INLINE_LAMBDA { ofColumns<Some>(a, c, n); });
    }
    VORM_INLINE void ofRow(Number* row) const
    {
        const Number sum = sumInEights<Number>(row + k + 1, u + k + 1, n - k - 1);
        const Number tau = where(taken, beta * sum);
        along<Number>(k + 1, n, [&]<class Some>(int j) VORM_INLINE_LAMBDA {
            storeSome(row + j, loadSome<Some>(row + j) - Some(tau) * loadSome<Some>(u + j));
        });
    }
};

// Leaves the diagonal and the elements below it in w; u is room for n numbers. vectors.reflect(reflection) is called
// for each reflection, unless there are none to be had.
template <class Number, class Vectors>
VORM_INLINE void reduce(Number* w, Number* u, int n, Vectors& vectors)
{
    using T = Element<Number>;
    const Number eps(tolerance<T>);
    for (int k = 0; k + 2 < n; ++k) {
        const auto below = [&](int i) VORM_INLINE_LAMBDA { return Number(at(w, i * std::ptrdiff_t{n} + k)); };
        const Number sum = pairedSum<Number>(k + 1, n, [&](int i) VORM_INLINE_LAMBDA { return below(i) * below(i); });
        const Number norm = sqrt(sum), a = below(k + 1), product = a * norm;
        const auto isTiny = abs(a) <= eps, isPositive = a > eps;
        const Number first = select(isTiny, norm, select(isPositive, a + norm, a - norm));
        const Number twice = select(isPositive, sum + product, sum - product) * Number(T(2));
        const Number h = select(isTiny, sum + sum, twice);
        auto taken = without(always<Number>(), h <= eps);
        if constexpr (Vectors::areWanted) taken = without(taken, abs(norm - a) <= eps);
        if (!any(taken)) continue;
        at(u, k + 1) = where(taken, first);
        for (int i = k + 2; i < n; ++i) at(u, i) = where(taken, below(i));
        const Reflection<Number> reflection{u, Number(T(2)) / h, taken, k, n};
        // What is never read again gets no new value: column k below the subdiagonal, and row k from the right.
        reflection.template ofColumns<Number>(w, k, k + 2);
        reflection.ofColumns(w, k + 1);
        for (int r = k + 1; r < n; ++r) reflection.ofRow(w + r * std::ptrdiff_t{n});
        vectors.reflect(reflection);
    }
}

}  // namespace vorm::eigen::sym
