// The closed form of order 2, over a number type.
#pragma once

#include "eigen/sym/reduction.hpp"

namespace vorm::eigen::sym {

template <class Number>
struct OrderTwo {
    Number values[2];
    MaskOf<Number> isSingular, isNegative;  // the latter: the trace is
    Number root;
};

// The matrix (a b; b c).
template <class Number>
VORM_INLINE OrderTwo<Number> valuesOfTwo(const Number& a, const Number& b, const Number& c)
{
    using T = Element<Number>;
    const Number eps = tolerance<T>, half = T(0.5);
    const Number det = c * a - b * b, trace = a + c, difference = a - c, twiceB = Number(T(2)) * b;
    const Number root = sqrt(difference * difference + twiceB * twiceB);
    const auto isPositive = trace > eps, isNegative = trace < -eps;
    const Number larger =
        select(isPositive, (trace + root) * half, select(isNegative, (trace - root) * half, half * root));
    const Number other = select(isPositive | isNegative, (a * c - b * b) / larger, Number(T(-0.5)) * root);
    return {{larger, other}, abs(det) <= eps, isNegative, root};
}

// The matrix of vectors is (p -q; q p).
template <class Number>
VORM_INLINE void vectorsOfTwo(const Number& a, const Number& b, const Number& c, const OrderTwo<Number>& of, Number& p,
                              Number& q)
{
    using T = Element<Number>;
    const Number eps = tolerance<T>, one = T(1), difference = a - c, twiceB = Number(T(2)) * b;
    const auto isNegative = difference < -eps;
    const Number w = select(isNegative, difference - of.root, difference + of.root);
    const auto isSteep = abs(w) > abs(twiceB), isDiagonal = without(abs(twiceB) <= eps, isSteep);
    const Number r = -select(isSteep, twiceB, w) / select(isSteep, w, twiceB);
    const Number h = one / sqrt(r * r + one), product = r * h;
    const Number x = select(isDiagonal, one, select(isSteep, product, h));
    const Number y = select(isDiagonal, Number(T(0)), select(isSteep, h, product));
    const auto turns = (isNegative & of.isNegative) | without(without(always<Number>(), isNegative), of.isNegative);
    p = select(turns, -y, x);
    q = select(turns, x, y);
}

}  // namespace vorm::eigen::sym
