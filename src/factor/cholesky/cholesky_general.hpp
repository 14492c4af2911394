// Cholesky decomposition of any order, column by column on the stack where it has room, row by row in the destination
// otherwise; and what all paths have in common.
#pragma once

#include "frame/object_lanes.hpp"
#include "vorm/status.h"

namespace vorm::factor {

// 0 >= t in any object. A NaN passes.
template <class Number>
VORM_INLINE bool anyNotPositive(const Number& t)
{
    bool found = false;
    unrolled<registersIn<Number>>([&](auto k) VORM_INLINE_LAMBDA {
        const auto one = registerOf(t, k);
        found = found || any(one <= decltype(one)(Element<Number>(0)));
    });
    return found;
}

// 1 / sqrt(t). In single precision the processor's estimate r and one step of refinement, (r -0.5) ((t r) r - 3).
template <class Number>
VORM_INLINE Number inverseRoot(const Number& t)
{
    using T = Element<Number>;
    Number d;
    unrolled<registersIn<Number>>([&](auto k) VORM_INLINE_LAMBDA {
        const auto one = registerOf(t, k);
        using One = RegisterIn<Number>;
        if constexpr (sizeof(T) == sizeof(float)) {
            const One r = estimateReciprocalRoot(one);
            registerOf(d, k) = (r * One(T(-0.5))) * ((one * r) * r - One(T(3)));
        } else {
            registerOf(d, k) = One(T(1)) / sqrt(one);
        }
    });
    return d;
}

// A value less a sum: terms 0, 2, 4, ... are subtracted from the value, terms 1, 3, 5, ... from zero; the two are
// added after the last pair, a term left over is subtracted last.
template <class Number>
struct PairedDifference {
    Number even, odd = Number(Element<Number>(0));
    VORM_INLINE void subtract(const Number& first, const Number& second)
    {
        even = even - first;
        odd = odd - second;
    }
    // terms in all, the last of them last()
    template <class Term>
    VORM_INLINE Number total(int terms, const Term& last) const
    {
        const Number sum = terms >= 2 ? even + odd : even;
        return terms % 2 == 0 ? sum : sum - last();
    }
};
// value - term(0) - ... - term(terms - 1)
template <class Number, class Term>
VORM_INLINE Number less(const Number& value, int terms, const Term& term)
{
    PairedDifference<Number> difference{value};
    for (int k = 0; k + 2 <= terms; k += 2) difference.subtract(term(k), term(k + 1));
    return difference.total(terms, [&]() VORM_INLINE_LAMBDA { return term(terms - 1); });
}

// One matrix column by column: column c of the lower triangle begins at u + c * columnStep<T>(n), with element (r, c)
// at place r and zeros from place n on. So the rows of a column lie in lanes, and do not wait for each other. Returns
// how many columns have passed. Compiled once, in cholesky_blocks.cpp.
template <class T>
VORM_HIDDEN int choleskyFactoriseColumns(T* u, int n);
constexpr int columnsOrder = 64;  // the highest for which the stack is to have room
template <class T>
constexpr std::ptrdiff_t columnStep(int n)
{
    return n + narrow<T>;
}

template <class T, class Src, class Dst>
VORM_SHARED VormStatus choleskyInColumns(const Src src, const Dst dst, int object, int order)
{
    T u[columnsOrder * columnStep<T>(columnsOrder)];
    const std::ptrdiff_t step = columnStep<T>(order);
    for (int r = 0; r < order; ++r) {
        for (int c = 0; c <= r; ++c) u[c * step + r] = src(object, r, c);
        for (int i = 0; i < narrow<T>; ++i) u[r * step + order + i] = 0;
    }
    const int passed = choleskyFactoriseColumns(u, order);
    for (int r = 0; r < order && r <= passed; ++r)
        for (int c = 0; c < passed && c <= r; ++c) dst(object, r, c) = u[c * step + r];
    return passed == order ? StatusOk : StatusNotPositiveDefinite;
}

// Several columns of a row side by side, since each sum waits for its own last term; then one after the other, as
// each needs those before.
template <class T, class Src, class Dst>
VORM_SHARED VormStatus choleskyOne(const Src src, const Dst dst, int object, int order)
{
    constexpr int some = 4;
    const auto l = [&](int r, int c) VORM_INLINE_LAMBDA { return T(dst(object, r, c)); };
    const auto term = [&](int i, int j, int k) VORM_INLINE_LAMBDA { return l(i, k) * l(j, k); };
    for (int i = 0; i < order; ++i) {
        int j = 0;
        for (; j + some <= i; j += some) {
            T even[some], odd[some] = {};
            for (int q = 0; q < some; ++q) even[q] = src(object, i, j + q);
            for (int k = 0; k < j; k += 2)
                for (int q = 0; q < some; ++q) {
                    even[q] = even[q] - term(i, j + q, k);
                    odd[q] = odd[q] - term(i, j + q, k + 1);
                }
            unrolled<some>([&](auto q) VORM_INLINE_LAMBDA {
                PairedDifference<T> difference{even[q], odd[q]};
                for (int k = j; k + 2 <= j + q; k += 2) difference.subtract(term(i, j + q, k), term(i, j + q, k + 1));
                dst(object, i, j + q) = difference.total(j + q, [&]() VORM_INLINE_LAMBDA {
                    return term(i, j + q, j + q - 1);
                }) * l(j + q, j + q);
            });
        }
        for (; j < i; ++j)
            dst(object, i, j) =
                less(T(src(object, i, j)), j, [&](int k) VORM_INLINE_LAMBDA { return term(i, j, k); }) * l(j, j);
        const T t = less(T(src(object, i, i)), i, [&](int k) VORM_INLINE_LAMBDA { return term(i, i, k); });
        if (anyNotPositive(t)) return StatusNotPositiveDefinite;
        dst(object, i, i) = inverseRoot(t);
    }
    return StatusOk;
}

// The same code for objects of arrays as for single ones.
template <class T, class Src, class Dst>
VORM_INLINE VormStatus choleskyGeneral(const Src& src, const Dst& dst, int object, int order)
{
    const auto any = [order](const auto& from, const auto& to, int which) VORM_INLINE_LAMBDA {
        if (order > 2 && order <= columnsOrder) return choleskyInColumns<T>(from, to, which, order);
        return choleskyOne<T>(from, to, which, order);
    };
    if constexpr (requires { dst.single(0); })
        return any(src.single(object), dst.single(object), 0);
    else
        return any(plain(src), plain(dst), object);
}

}  // namespace vorm::factor
