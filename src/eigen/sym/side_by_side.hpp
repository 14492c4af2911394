// Numbers in memory, each one object or a register of them: single ones may lie at any address, and rows of them are
// worked through a register at a time.
#pragma once

#include "frame/lanes.hpp"

namespace vorm::eigen::sym {

template <class Number>
VORM_INLINE decltype(auto) at(Number* p, std::ptrdiff_t i)
{
    if constexpr (inLanes<std::remove_const_t<Number>>)
        return (p[i]);
    else
        return entry(p, i);
}

// Calls body.template operator()<Some>(i) for the numbers from first to end - 1, Some being as many as it takes.
template <class Number, class Body>
VORM_INLINE void along(int first, int end, const Body& body)
{
    int i = first;
    if constexpr (!inLanes<Number>)
        for (; i + narrow<Number> <= end; i += narrow<Number>) body.template operator()<Lanes<Number>>(i);
    for (; i < end; ++i) body.template operator()<Number>(i);
}
template <class Some, class Number>
VORM_INLINE Some loadSome(const Number* p)
{
    if constexpr (std::is_same_v<Some, Number>)
        return at(p, 0);
    else
        return Some::load(p);
}
template <class Some, class Number>
VORM_INLINE void storeSome(Number* p, const Some& some)
{
    if constexpr (std::is_same_v<Some, Number>)
        at(p, 0) = some;
    else
        some.store(p);
}

// The sum of two terms or more, in an even and an odd sum, added at the end, then a last one alone.
template <class Some, class Term>
VORM_INLINE Some pairedSum(int first, int end, const Term& term)
{
    Some even = term(first), odd = term(first + 1);
    int i = first + 2;
    for (; i + 2 <= end; i += 2) {
        even = even + term(i);
        odd = odd + term(i + 1);
    }
    const Some sum = even + odd;
    return i < end ? sum + term(i) : sum;
}

// The sum of a[i] b[i]: whole groups of eight in eight sums, ((s0 + s1) + (s2 + s3)) + ((s4 + s5) + (s6 + s7)), then
// the rest one by one.
template <class Number>
VORM_INLINE Number sumInEights(const Number* a, const Number* b, int terms)
{
    const auto term = [&](int i) VORM_INLINE_LAMBDA { return Number(at(a, i)) * Number(at(b, i)); };
    Number sum = term(0);
    int i = 1;
    if (terms >= 8) {
        Number s[8];
        const auto groups = [&]<class Some>(Some) VORM_INLINE_LAMBDA {
            constexpr int width = objectsIn<Some> / objectsIn<Number>, registers = 8 / width;
            Some of[registers];
            const auto group = [&](int r, int j) VORM_INLINE_LAMBDA {
                return loadSome<Some>(a + j + r * width) * loadSome<Some>(b + j + r * width);
            };
            for (int r = 0; r < registers; ++r) of[r] = group(r, 0);
            for (i = 8; i + 8 <= terms; i += 8)
                for (int r = 0; r < registers; ++r) of[r] = of[r] + group(r, i);
            for (int r = 0; r < registers; ++r) storeSome(s + r * width, of[r]);
        };
        if constexpr (inLanes<Number>)
            groups(Number());
        else
            groups(Lanes<Number>());
        sum = ((s[0] + s[1]) + (s[2] + s[3])) + ((s[4] + s[5]) + (s[6] + s[7]));
    }
    for (; i < terms; ++i) sum = sum + term(i);
    return sum;
}

}  // namespace vorm::eigen::sym
