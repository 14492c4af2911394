// Sums of more than six terms, in the order of order.hpp: of one object along its elements, or of numbers that hold
// an object in each lane.
#pragma once

#include "frame/elements.hpp"
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

// The sums of a run of any length, not yet folded.
template <class Op, class T>
VORM_INLINE Lanes<T> sumsAlong(const Runs<Op, T>& runs, std::ptrdiff_t n)
{
    constexpr int width = narrow<T>;
    Lanes<T> sums[sumRegisters];
    for (auto& sum : sums) sum = T(0);
    std::ptrdiff_t i = 0;
    if (n >= sumsOf<T>) addGroups<Op>(runs.p, n, i, sums);
    const int left = int(n - i);
    if (left == 0) return united(sums);
    unrolled<sumRegisters>([&](auto j) VORM_INLINE_LAMBDA {
        const auto add = [&](const auto& load) VORM_INLINE_LAMBDA {
            sums[j] = sums[j] +
                      termOf<Op, Lanes<T>>([&](auto s) VORM_INLINE_LAMBDA { return load(runs.p[s] + i + j * width); });
        };
        if (left >= (j + 1) * width)
            add([](const T* p) VORM_INLINE_LAMBDA { return Lanes<T>::load(p); });
        else if (left > j * width)  // the lanes without a term are zero
            add([&](const T* p) VORM_INLINE_LAMBDA { return loadFirst(p, left - j * width); });
    });
    return united(sums);
}
// The same of a length that is known.
template <class Op, int n, class T>
VORM_INLINE Lanes<T> sumsAlong(const Runs<Op, T>& runs)
{
    constexpr int width = narrow<T>, whole = n / width, rest = n % width, registers = whole + (rest != 0);
    const auto term = [&](auto k) VORM_INLINE_LAMBDA {
        return termOf<Op, Lanes<T>>([&](auto s) VORM_INLINE_LAMBDA {
            const T* const p = runs.p[s] + k * width;
            if constexpr (k < whole)
                return Lanes<T>::load(p);
            else if constexpr (rest == 3)
                return loadThree(p);
            else
                return loadFirst<rest>(p);
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
        return sum;
    };
    Number lane[width];
    for (int l = 0; l < width; ++l) {
        const Number first = sumFrom(l) + sumFrom(l + width);
        lane[l] = first + (sumFrom(l + 2 * width) + sumFrom(l + 3 * width));
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
    if constexpr (l + distance < n)
        return sumFrom<n, l>(term) + sumFrom<n, l + distance>(term);
    else
        return sumFrom<n, l>(term);
}
template <int n, int l, class Term>
VORM_INLINE auto sumOfLane(const Term& term)
{
    constexpr int width = narrow<Element<decltype(term(constant<0>))>>;
    if constexpr (l + 2 * width < n)
        return sumOfPair<n, l, width>(term) + sumOfPair<n, l + 2 * width, width>(term);
    else
        return sumOfPair<n, l, width>(term);
}
template <class Op, int n, class Term>
VORM_INLINE auto sumOfNumbers(const Term& term)
{
    using Number = decltype(term(constant<0>));
    if constexpr (narrow<Element<Number>> == 2)
        return Op::fromZero(sumOfLane<n, 0>(term) + sumOfLane<n, 1>(term));
    else
        return Op::fromZero((sumOfLane<n, 0>(term) + sumOfLane<n, 1>(term)) +
                            (sumOfLane<n, 2>(term) + sumOfLane<n, 3>(term)));
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
