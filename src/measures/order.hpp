// What a measure makes of its terms, and the one order in which they are added (docs/numeric_contract.md). Up to six
// terms are added from left to right. Of more, term k belongs to sum k mod sumsOf<T>; the sums start from zero, lie in
// four registers of 128 bits that are added pairwise, and then the lanes of what is left are.
#pragma once

#include <cstddef>

#include "frame/lanes.hpp"
#include "frame/shuffles.hpp"

namespace vorm::measures {

constexpr int shortTerms = 6;
constexpr int sumRegisters = 4;
template <class T>
constexpr int sumsOf = sumRegisters* narrow<T>;

// The terms, over numbers of any kind; what a long sum needs so that it is as if started from zero (sums of squares
// are that anyhow); and the result.
struct Dot {
    static constexpr int sources = 2;
    template <class Number>
    VORM_INLINE static Number term(const Number& a, const Number& b)
    {
        return a * b;
    }
    template <class Number>
    VORM_INLINE static Number fromZero(const Number& sum)
    {
        return sum + Number(Element<Number>(0));
    }
    template <class Number>
    VORM_INLINE static Number result(const Number& sum)
    {
        return sum;
    }
};
struct Norm {
    static constexpr int sources = 1;
    template <class Number>
    VORM_INLINE static Number term(const Number& a)
    {
        return a * a;
    }
    template <class Number>
    VORM_INLINE static Number fromZero(const Number& sum)
    {
        return sum;
    }
    template <class Number>
    VORM_INLINE static Number result(const Number& sum)
    {
        return sqrt(sum);
    }
};

// Calls body with the number of each source.
template <class Op, class Number, class Load>
VORM_INLINE Number termOf(const Load& load)
{
    if constexpr (Op::sources == 2)
        return Op::term(Number(load(constant<0>)), Number(load(constant<1>)));
    else
        return Op::term(Number(load(constant<0>)));
}

// term(0) + term(1) + ... + term(n - 1).
template <class N, class Term>
VORM_INLINE auto leftToRight(N n, const Term& term)
{
    auto sum = term(constant<0>);
    if constexpr (std::is_same_v<N, int>)
        for (int k = 1; k < n; ++k) sum = sum + term(k);
    else
        unrolled<N::value, 1>([&](auto k) VORM_INLINE_LAMBDA { sum = sum + term(k); });
    return sum;
}

// The four registers of a long sum as one; its lanes, added pairwise: (l0 + l1) + (l2 + l3), or l0 + l1.
template <class T>
VORM_INLINE Lanes<T> united(const Lanes<T> (&sums)[sumRegisters])
{
    return (sums[0] + sums[1]) + (sums[2] + sums[3]);
}
template <class T>
VORM_INLINE T folded(Lanes<T> sums)
{
    for (int left = narrow<T>; left > 1; left /= 2) sums = pairSums(sums, sums);
    return firstLane(sums);
}
// The same of as many objects as a register has lanes.
VORM_INLINE Lanes<float> folded(const Lanes<float> (&sums)[4])
{
    return pairSums(pairSums(sums[0], sums[1]), pairSums(sums[2], sums[3]));
}
VORM_INLINE Lanes<double> folded(const Lanes<double> (&sums)[2]) { return pairSums(sums[0], sums[1]); }

}  // namespace vorm::measures
