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
// The same of a length that is known: whole registers and at most one element.
template <class Op, int n, class T>
VORM_INLINE Lanes<T> sumsAlong(const Runs<Op, T>& runs)
{
    constexpr int width = narrow<T>, whole = n / width, rest = n % width, registers = whole + rest;
    static_assert(rest <= 1 && registers > 2);
    const auto term = [&](auto k) VORM_INLINE_LAMBDA {
        return termOf<Op, Lanes<T>>([&](auto s) VORM_INLINE_LAMBDA {
            if constexpr (k < whole)
                return Lanes<T>::load(runs.p[s] + k * width);
            else
                return loadFirst<1>(runs.p[s] + k * width);
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
    if constexpr (registers == 3) return (sums[0] + sums[1]) + sums[2];
    return united(sums);
}

// Of numbers: term(k) of all objects that a number holds. A sum at a time grows, so that any number of them fits.
template <class Op, class Number, class Term>
VORM_INLINE Number sumOfNumbers(std::ptrdiff_t terms, const Term& term)
{
    using T = Element<Number>;
    constexpr int count = sumsOf<T>;
    Number sums[count];
    for (int l = 0; l < count; ++l) {
        if (l >= terms) {
            sums[l] = Number(T(0));
            continue;
        }
        Number sum = term(l);
        for (std::ptrdiff_t k = l + count; k < terms; k += count) sum = sum + term(k);
        sums[l] = sum;
    }
    // Pairs of registers lie half of all sums apart at first, then pairs of lanes.
    constexpr int width = narrow<T>;
    Number lane[width];
    for (int l = 0; l < width; ++l) lane[l] = (sums[l] + sums[l + width]) + (sums[l + 2 * width] + sums[l + 3 * width]);
    for (int left = width; left > 1; left /= 2)
        for (int l = 0; l < left / 2; ++l) lane[l] = lane[2 * l] + lane[2 * l + 1];
    return Op::fromZero(lane[0]);
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
