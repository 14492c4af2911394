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
// The same of the groups that others or single terms follow, at least one, begun with their first terms.
template <class Op, class T>
VORM_INLINE void firstGroups(const Runs<Op, T>& runs, std::ptrdiff_t n, std::ptrdiff_t& i,
                             Lanes<T> (&sums)[sumRegisters])
{
    for (int j = 0; j < sumRegisters; ++j)
        sums[j] =
            termOf<Op, Lanes<T>>([&](auto s) VORM_INLINE_LAMBDA { return Lanes<T>::load(runs.p[s] + j * narrow<T>); });
    i = sumsOf<T>;
    addGroups<Op>(runs.p, n - 1, i, sums);
}

// The last register of a run of n terms, more than fit a register, ends with its last term: the terms that were in a
// register before are shifted out, and zeros stand behind the others.
template <class T>
class LastTerms {
public:
    VORM_INLINE explicit LastTerms(std::ptrdiff_t n)
    {
        static constexpr unsigned char bytes[32] = {0,   1,   2,   3,   4,   5,   6,   7,   8,   9,   10,
                                                    11,  12,  13,  14,  15,  128, 128, 128, 128, 128, 128,
                                                    128, 128, 128, 128, 128, 128, 128, 128, 128, 128};
        const std::ptrdiff_t before = -n & (narrow<T> - 1);
        order_ = _mm_loadu_si128(reinterpret_cast<const __m128i*>(bytes + before * int{sizeof(T)}));
    }
    VORM_INLINE Lanes<T> of(Lanes<T> a) const
    {
        if constexpr (narrow<T> == 4)
            return _mm_castsi128_ps(_mm_shuffle_epi8(_mm_castps_si128(a.v), order_));
        else
            return _mm_castsi128_pd(_mm_shuffle_epi8(_mm_castpd_si128(a.v), order_));
    }

private:
    __m128i order_;
};
// So many registers at the end of a run are added to the sums, or are their first terms. The last register holds one
// term or more.
template <class Op, int registers, bool isFirst, class T>
VORM_INLINE void addLast(const Runs<Op, T>& runs, std::ptrdiff_t n, std::ptrdiff_t i, const LastTerms<T>& last,
                         Lanes<T> (&sums)[sumRegisters])
{
    constexpr int width = narrow<T>;
    unrolled<registers>([&](auto j) VORM_INLINE_LAMBDA {
        const std::ptrdiff_t at = j < registers - 1 ? i + j * width : n - width;
        auto terms = termOf<Op, Lanes<T>>([&](auto s) VORM_INLINE_LAMBDA { return Lanes<T>::load(runs.p[s] + at); });
        if constexpr (j == registers - 1) terms = last.of(terms);
        sums[j] = isFirst ? terms : sums[j] + terms;
    });
}
// The sums of a run that ends with so many registers, with at least one whole group before them or with none; not yet
// folded.
template <class Op, int registers, bool hasGroups, class T>
VORM_INLINE Lanes<T> sumsOfOne(const Runs<Op, T>& runs, std::ptrdiff_t n, const LastTerms<T>& last)
{
    Lanes<T> sums[sumRegisters];
    std::ptrdiff_t i = 0;
    if constexpr (hasGroups) firstGroups<Op>(runs, n, i, sums);
    addLast<Op, registers, !hasGroups>(runs, n, i, last, sums);
    if constexpr (!hasGroups && registers == 2) return sums[0] + sums[1];
    if constexpr (!hasGroups && registers == 3) return (sums[0] + sums[1]) + sums[2];
    return united(sums);
}
// Calls body(registers, hasGroups) for a run of n terms, more than are added from left to right.
template <class T, class Body>
VORM_INLINE auto withLastRegisters(std::ptrdiff_t n, const Body& body)
{
    const int registers = int((n - 1) % sumsOf<T>) / narrow<T> + 1;
    if (n <= sumsOf<T>) {
        if constexpr (narrow<T> == 4) {
            if (registers == 2) return body(constant<2>, std::false_type{});
            if (registers == 3) return body(constant<3>, std::false_type{});
        }
        return body(constant<4>, std::false_type{});
    }
    switch (registers) {
    case 1: return body(constant<1>, std::true_type{});
    case 2: return body(constant<2>, std::true_type{});
    case 3: return body(constant<3>, std::true_type{});
    default: return body(constant<4>, std::true_type{});
    }
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

// Of numbers: term(k) of all objects that a number holds. So many terms, or sums of more, make a lane of all sums; the
// last may be missing. Sums grow and are added one at a time, so that few are in registers.
template <class Op, class Number, int registers, bool hasGroups, class Term>
VORM_INLINE Number sumOfNumbers(std::ptrdiff_t n, const Term& term)
{
    using T = Element<Number>;
    constexpr int group = sumsOf<T>, width = narrow<T>;
    const auto sumFrom = [&](int k) VORM_INLINE_LAMBDA {
        Number sum = term(k);
        if constexpr (hasGroups)
            for (std::ptrdiff_t i = k + group; i < n; i += group) sum = sum + term(i);
        return settled(sum);
    };
    const auto withLast = [&](Number sum, int k) VORM_INLINE_LAMBDA {
        if (hasGroups || k < n) sum = sum + sumFrom(k);
        return settled(sum);
    };
    const auto lane = [&](int l) VORM_INLINE_LAMBDA {
        const Number first = sumFrom(l);
        if constexpr (registers == 2) return withLast(first, l + width);
        const Number half = settled(first + sumFrom(l + width));
        if constexpr (registers == 3) return withLast(half, l + 2 * width);
        return settled(half + withLast(sumFrom(l + 2 * width), l + 3 * width));
    };
    const auto pair = [&](int l) VORM_INLINE_LAMBDA {
        const Number first = lane(l);
        return settled(first + lane(l + 1));
    };
    const Number first = pair(0);
    if constexpr (width == 2)
        return Op::fromZero(first);
    else
        return Op::fromZero(first + pair(2));
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
VORM_HIDDEN VormStatus longMeasure(Runs<Op, T> runs, std::ptrdiff_t n, T* dst);

}  // namespace vorm::measures
