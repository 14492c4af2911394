// Sums of more than six terms, in the order of order.hpp: of one object along its elements, or of numbers that hold
// an object in each lane.
#pragma once

#include "frame/elements.hpp"
#include "frame/pin.hpp"
#include "measures/order.hpp"

namespace vorm::measures {

template <class Op, class T>
struct Runs {  // the elements of an object, side by side in each source
    const T* p[Op::sources];
};

// The sums of as many groups of sumsOf<T> terms as there are; i is where they end.
template <class Op, class T>
VORM_INLINE void addGroups(const T* const (&p)[Op::sources], std::ptrdiff_t n, std::ptrdiff_t& i,
                           Lanes<T> (&sums)[sumRegisters])
{
    constexpr int group = sumsOf<T>, parts = Wide<T>::parts, registers = sumRegisters / parts;
    const auto at = [&](auto s, int offset) VORM_INLINE_LAMBDA { return p[s] + i + offset; };
    Wide<T> wide[registers];
    for (int j = 0; j < registers; ++j)
        wide[j] = joined<Wide<T>>([&](int q) VORM_INLINE_LAMBDA { return sums[j * parts + q]; });
    for (; i + group <= n; i += group)
        for (int j = 0; j < registers; ++j)
            wide[j] = wide[j] + termOf<Op, Wide<T>>([&](auto s) VORM_INLINE_LAMBDA {
                          return Wide<T>::load(at(s, j * Wide<T>::width));
                      });
    for (int j = 0; j < registers; ++j)
        eachPart(wide[j], [&](int q, Lanes<T> part) VORM_INLINE_LAMBDA { sums[j * parts + q] = part; });
}

// The sums of a run of at least one group, not yet folded and begun with their first terms.
template <class Op, class T>
VORM_INLINE Lanes<T> sumsAlong(const Runs<Op, T>& runs, std::ptrdiff_t n)
{
    constexpr int width = narrow<T>;
    Lanes<T> sums[sumRegisters];
    for (int j = 0; j < sumRegisters; ++j)
        sums[j] =
            termOf<Op, Lanes<T>>([&](auto s) VORM_INLINE_LAMBDA { return Lanes<T>::load(runs.p[s] + j * width); });
    std::ptrdiff_t i = sumsOf<T>;
    if (n >= 2 * sumsOf<T>) addGroups<Op>(runs.p, n, i, sums);
    const int left = int(n - i), rest = left % width;
    const auto add = [&](auto j, const auto& load) VORM_INLINE_LAMBDA {
        sums[j] =
            sums[j] + termOf<Op, Lanes<T>>([&](auto s) VORM_INLINE_LAMBDA { return load(runs.p[s] + i + j * width); });
    };
    const auto addWhole = [&](auto j) VORM_INLINE_LAMBDA {
        add(j, [](const T* p) VORM_INLINE_LAMBDA { return Lanes<T>::load(p); });
    };
    const auto addRest = [&](auto j) VORM_INLINE_LAMBDA {  // the lanes without a term are zero
        if (rest) add(j, [&](const T* p) VORM_INLINE_LAMBDA { return loadFirst(p, rest); });
    };
    switch (left / width) {
    case 0: addRest(constant<0>); break;
    case 1: addWhole(constant<0>), addRest(constant<1>); break;
    case 2: addWhole(constant<0>), addWhole(constant<1>), addRest(constant<2>); break;
    default: addWhole(constant<0>), addWhole(constant<1>), addWhole(constant<2>), addRest(constant<3>); break;
    }
    return united(sums);
}
// The same of whole registers, of which so many are behind the last group.
template <class Op, int behind, class T>
VORM_INLINE Lanes<T> sumsOfRegisters(const Runs<Op, T>& runs, std::ptrdiff_t n)
{
    constexpr int width = narrow<T>;
    const auto term = [&](std::ptrdiff_t at) VORM_INLINE_LAMBDA {
        return termOf<Op, Lanes<T>>([&](auto s) VORM_INLINE_LAMBDA { return Lanes<T>::load(runs.p[s] + at); });
    };
    Lanes<T> sums[sumRegisters];
    for (int j = 0; j < sumRegisters; ++j) sums[j] = term(j * width);
    std::ptrdiff_t i = sumsOf<T>;
    if (n >= 2 * sumsOf<T>) addGroups<Op>(runs.p, n, i, sums);
    unrolled<behind>([&](auto j) VORM_INLINE_LAMBDA { sums[j] = sums[j] + term(i + j * width); });
    return united(sums);
}
// The same of a length that is known: whole registers and a rest of so many elements, of which only hasRest needs to be
// known.
template <class Op, int whole, bool hasRest, class T, class Rest>
VORM_INLINE Lanes<T> sumsAlong(const Runs<Op, T>& runs, Rest rest)
{
    constexpr int width = narrow<T>, registers = whole + hasRest;
    const auto term = [&](auto k) VORM_INLINE_LAMBDA {
        return termOf<Op, Lanes<T>>([&](auto s) VORM_INLINE_LAMBDA {
            const T* const p = runs.p[s] + k * width;
            if constexpr (k < whole)
                return Lanes<T>::load(p);
            else
                return loadFirst(p, rest);
        });
    };
    Lanes<T> sums[sumRegisters];
    unrolled<registers>([&](auto k) VORM_INLINE_LAMBDA {
        auto& sum = sums[k % sumRegisters];
        if constexpr (k < sumRegisters)
            sum = term(k);
        else
            sum = sum + term(k);
    });
    if constexpr (registers == 2) return sums[0] + sums[1];
    if constexpr (registers == 3) return (sums[0] + sums[1]) + sums[2];
    return united(sums);
}

// Keeps sums from being made side by side: they would not fit the registers.
template <class Number>
VORM_INLINE Number settled(Number sum)
{
    unrolled<registersIn<Number>>([&](auto k) VORM_INLINE_LAMBDA { pin(registerOf(sum, k)); });
    return sum;
}

// Of numbers: term(k) of all objects that a number holds. A sum at a time grows, so that few are in registers.
template <class Op, class Number, class Term>
VORM_INLINE Number sumOfNumbers(std::ptrdiff_t n, const Term& term)
{
    using T = Element<Number>;
    constexpr int count = sumsOf<T>, width = narrow<T>;
    const auto sumFrom = [&](int l) VORM_INLINE_LAMBDA {
        if (l >= n) return Number(T(0));
        Number sum = term(l);
        for (std::ptrdiff_t k = l + count; k < n; k += count) sum = sum + term(k);
        return settled(sum);
    };
    Number lane[width];
    for (int l = 0; l < width; ++l) {
        const Number s0 = sumFrom(l), s1 = sumFrom(l + width);
        const Number s2 = sumFrom(l + 2 * width), s3 = sumFrom(l + 3 * width);
        lane[l] = (s0 + s1) + (s2 + s3);
    }
    if constexpr (width == 2)
        return Op::fromZero(lane[0] + lane[1]);
    else
        return Op::fromZero((lane[0] + lane[1]) + (lane[2] + lane[3]));
}
// The same, where n is a constant: the sums without a term are left out.
template <int n, int l, class Term>
VORM_INLINE auto sumFrom(const Term& term)
{
    using T = Element<decltype(term(constant<0>))>;
    auto sum = term(constant<l>);
    unrolled<(n - l + sumsOf<T> - 1) / sumsOf<T>, 1>(
        [&](auto k) VORM_INLINE_LAMBDA { sum = sum + term(constant<l + k * sumsOf<T>>); });
    return sum;
}
template <int n, int l, int distance, class Term>
VORM_INLINE auto sumOfPair(const Term& term)
{
    if constexpr (l + distance < n) {
        const auto first = sumFrom<n, l>(term);
        return settled(first + sumFrom<n, l + distance>(term));
    } else {
        return sumFrom<n, l>(term);
    }
}
template <int n, int l, class Term>
VORM_INLINE auto sumOfLane(const Term& term)
{
    constexpr int width = narrow<Element<decltype(term(constant<0>))>>;
    if constexpr (l + 2 * width < n) {
        const auto first = sumOfPair<n, l, width>(term);
        return settled(first + sumOfPair<n, l + 2 * width, width>(term));
    } else {
        return sumOfPair<n, l, width>(term);
    }
}
template <class Op, int n, class Term>
VORM_INLINE auto sumOfNumbers(const Term& term)
{
    const auto pair = [&](auto l) VORM_INLINE_LAMBDA {
        const auto first = sumOfLane<n, l>(term);
        return settled(first + sumOfLane<n, l + 1>(term));
    };
    const auto first = pair(constant<0>);
    if constexpr (narrow<Element<decltype(term(constant<0>))>> == 2)
        return Op::fromZero(first);
    else
        return Op::fromZero(first + pair(constant<2>));
}

// The result of one object. ----------------------------------------------------------------------------------------

// The elements of an object anywhere, row after row.
template <class Op, class Object>
struct Objects {
    Object source[Op::sources];
};
template <class Op, class T, class Object>
VORM_INLINE T shortMeasure(const Objects<Op, Object>& object, int rows, int columns)
{
    const auto term = [&](int r, int c) VORM_INLINE_LAMBDA {
        return termOf<Op, T>([&](auto s) VORM_INLINE_LAMBDA { return T(object.source[s](r, c)); });
    };
    T sum = term(0, 0);
    for (int c = 1; c < columns; ++c) sum = sum + term(0, c);
    for (int r = 1; r < rows; ++r)
        for (int c = 0; c < columns; ++c) sum = sum + term(r, c);
    return Op::result(sum);
}
template <class Op, class T, class Object>
VORM_HIDDEN T longMeasureAnywhere(const Objects<Op, Object>& object, int rows, int columns);

template <class Op, class T>
VORM_INLINE T shortMeasure(const Runs<Op, T>& runs, int n)
{
    return Op::result(leftToRight(n, [&](int k) VORM_INLINE_LAMBDA {
        return termOf<Op, T>([&](auto s) VORM_INLINE_LAMBDA { return T(elementAt(runs.p[s] + k, 0)); });
    }));
}
template <class Op, class T>
VORM_HIDDEN T longMeasure(const Runs<Op, T>& runs, std::ptrdiff_t n);

}  // namespace vorm::measures
