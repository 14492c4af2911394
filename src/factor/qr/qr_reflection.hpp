// Householder reflections over a number type, one object or a register of them; sizes and places are constants of the
// program or numbers of its run.
//
// Every sum grows in two accumulators, its terms taken in pairs: the first of a pair goes to the one with the start
// value, the second to the other, from zero. Then the two are added, and last a term left over.
#pragma once

#include <limits>
#include <type_traits>

#include "frame/several.hpp"
#include "frame/unrolled.hpp"

namespace vorm::factor {

template <class I>
constexpr bool isFixed = !std::is_same_v<I, int>;

// body(first), ..., body(end - 1).
template <class First, class End, class Body>
VORM_INLINE void eachFrom(First first, End end, const Body& body)
{
    if constexpr (isFixed<First> && isFixed<End>)
        unrolled<End::value - First::value>([&](auto i) VORM_INLINE_LAMBDA { body(constant<First::value + i>); });
    else
        for (int i = first; i < end; ++i) body(i);
}
// i + more, a constant where i is one.
template <int more, class I>
constexpr auto behind(I i)
{
    if constexpr (isFixed<I>)
        return constant<I::value + more>;
    else
        return i + more;
}

// Adds terms(i, to), one for each sum, for i from first up to end.
template <class Number, int sums>
struct PairedSums {
    Number start[sums];  // the start values, then the sums
    template <class First, class End, class Terms>
    VORM_INLINE void add(First first, End end, const Terms& terms)
    {
        Number other[sums], term[sums];
        for (Number& sum : other) sum = RegisterIn<Number>(Element<Number>(0));
        const auto pair = [&](auto i) VORM_INLINE_LAMBDA {
            terms(i, term);
            for (int c = 0; c < sums; ++c) start[c] = start[c] + term[c];
            terms(behind<1>(i), term);
            for (int c = 0; c < sums; ++c) other[c] = other[c] + term[c];
        };
        const auto whole = [&](auto i) VORM_INLINE_LAMBDA {
            for (int c = 0; c < sums; ++c) start[c] = start[c] + other[c];
            if (i >= end) return;
            terms(i, term);
            for (int c = 0; c < sums; ++c) start[c] = start[c] + term[c];
        };
        if constexpr (isFixed<First> && isFixed<End>) {
            constexpr int pairs = (End::value - First::value) / 2;
            unrolled<pairs>([&](auto p) VORM_INLINE_LAMBDA { pair(constant<First::value + 2 * p>); });
            whole(constant<First::value + 2 * pairs>);
        } else {
            int i = first;
            for (; i + 2 <= end; i += 2) pair(i);
            whole(i);
        }
    }
};

// How many columns of a matrix get a reflector.
template <class W, class H>
constexpr auto reflectors(W width, H height)
{
    if constexpr (isFixed<W> && isFixed<H>)
        return constant<W::value - (W::value == H::value)>;
    else
        return int(width) - (width == height);
}

// The reflector of column k: v(i) takes the place of column(i) behind k, and column(k) that of R's diagonal. Or
// finds that the column is as good as zero, in any object, and leaves it.
template <class Number, class K, class H, class Column, class Reflector>
VORM_INLINE bool makeReflector(const Column& column, const Reflector& v, K k, H height, Number& beta)
{
    using T = Element<Number>;
    const auto all = [](T value) VORM_INLINE_LAMBDA { return Number(RegisterIn<Number>(value)); };
    const Number diagonal = column(k);
    PairedSums<Number, 1> squares{{all(0)}};
    squares.add(k, height, [&](auto i, Number(&term)[1]) VORM_INLINE_LAMBDA {
        const Number x = column(i);
        term[0] = x * x;
    });
    const Number s = squares.start[0];
    if (any(s < all(std::numeric_limits<T>::epsilon()))) return false;
    const Number root = sqrt(s);
    const Number r = all(1) / (diagonal + select(diagonal > all(0), root, -root));
    PairedSums<Number, 2> sums{{all(1), diagonal}};
    sums.add(behind<1>(k), height, [&](auto i, Number(&term)[2]) VORM_INLINE_LAMBDA {
        const Number x = column(i), component = x * r;
        v(i) = component;
        term[0] = component * component, term[1] = x * component;
    });
    beta = all(-2) / sums.start[0];
    column(k) = diagonal + sums.start[1] * beta;
    return true;
}

// Applies the reflector of column k, whose component there is an implied 1, to some columns: at(i, c) is row i of the
// c-th of them.
template <int columns, class Number, class K, class H, class Reflector, class At>
VORM_INLINE void reflect(const Reflector& v, const At& at, K k, H height, const Number& beta)
{
    PairedSums<Number, columns> sums;
    for (int c = 0; c < columns; ++c) sums.start[c] = at(k, c);
    sums.add(behind<1>(k), height, [&](auto i, Number(&term)[columns]) VORM_INLINE_LAMBDA {
        const Number component = v(i);
        for (int c = 0; c < columns; ++c) term[c] = Number(at(i, c)) * component;
    });
    Number d[columns];
    for (int c = 0; c < columns; ++c) {
        d[c] = sums.start[c] * beta;
        at(k, c) = Number(at(k, c)) + d[c];
    }
    eachFrom(behind<1>(k), height, [&](auto i) VORM_INLINE_LAMBDA {
        const Number component = v(i);
        for (int c = 0; c < columns; ++c) at(i, c) = Number(at(i, c)) + component * d[c];
    });
}

}  // namespace vorm::factor
