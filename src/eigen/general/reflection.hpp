// Householder reflections of the general eigenproblem over a number type, and the numbers its tests compare with.
// The reflection I - tau v v' takes (alpha, x) to (beta, 0), with v = (1, x scaled).
// Golub, Van Loan: Matrix Computations, section 5.1.
#pragma once

#include <limits>

#include "frame/lanes.hpp"

namespace vorm::eigen {

template <class T>
constexpr T ulp = std::numeric_limits<T>::epsilon();
template <class T>
constexpr T tiny = 2 * std::numeric_limits<T>::min();  // whatever is not above it counts as zero
template <class T>
constexpr T leastNorm = 4 * std::numeric_limits<T>::min();

template <class Number>
VORM_INLINE Number smaller(const Number& a, const Number& b)
{
    return select(a < b, a, b);
}

// sqrt(p^2 + q^2), scaled by the larger one; the quotient is squared as z^2 / w^2.
template <class Number>
VORM_INLINE Number hypotenuse(const Number& p, const Number& q)
{
    using T = Element<Number>;
    const Number w = larger(abs(p), abs(q)), z = smaller(abs(p), abs(q));
    return select(z < Number(tiny<T>), w, w * sqrt(Number(T(1)) + (z * z) / (w * w)));
}

// What turns (alpha, x) with x of the given norm. Without a norm nothing is turned: tau = 0, beta = alpha, scale = 1.
template <class Number>
struct Reflection {
    Number beta, tau, scale;  // the scale of x
};
template <class Number>
VORM_INLINE Reflection<Number> reflectionOf(const Number& alpha, const Number& norm)
{
    using T = Element<Number>;
    const Number zero(T(0)), one(T(1)), least(leastNorm<T>);
    const auto none = norm < Number(tiny<T>);
    const Number whole = hypotenuse(alpha, norm);
    const Number length = select(whole < Number(tiny<T>), least, whole);
    const Number beta = select(alpha >= zero, -length, length);
    return {select(none, alpha, beta), select(none, zero, (beta - alpha) / beta),
            select(none, one, one / (alpha - beta))};
}

}  // namespace vorm::eigen
