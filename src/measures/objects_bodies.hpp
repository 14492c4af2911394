// The bodies behind objects.hpp and sums.hpp.
#pragma once

#include "frame/blocks.hpp"
#include "frame/several.hpp"
#include "measures/objects.hpp"
#include "measures/short_runs.hpp"

namespace vorm::measures {

// Objects a number at a time, results(first) makes a Number of them. The last number begins before the end of the one
// before it if they do not fill it: these results are stored twice. Fewer objects than a register of 128 bits holds are
// left to few(), which stores them itself.
template <class Number, class T, class Results, class Few>
VORM_INLINE void storeResults(T* dst, int count, const Results& results, const Few& few)
{
    if constexpr (!inLanes<Number>) {
        few();
    } else {
        constexpr int objects = objectsIn<Number>;
        if (count < objects) return storeResults<typename NarrowerThan<Number>::Type>(dst, count, results, few);
        for (int first = 0; first < count; first = count - objects) {
            for (; count - first >= objects; first += objects) {
                const Number result = results.template operator()<Number>(first);
                for (int k = 0; k < registersIn<Number>; ++k)
                    registerOf(result, k).store(dst + first + k * RegisterIn<Number>::width);
            }
            if (first == count) return;
        }
    }
}

// Fewer terms than there are sums, more than are added from left to right. body(whole, hasRest).
template <class T, class Body>
VORM_INLINE auto withRegisters(int n, const Body& body)
{
    constexpr int width = narrow<T>;
    const bool hasRest = n % width != 0;
    if constexpr (width == 2) {
        return body(constant<3>, std::true_type{});  // 7
    } else {
        if (n < 2 * width) return body(constant<1>, std::true_type{});  // 7
        if (n < 3 * width) return hasRest ? body(constant<2>, std::true_type{}) : body(constant<2>, std::false_type{});
        return hasRest ? body(constant<3>, std::true_type{}) : body(constant<3>, std::false_type{});
    }
}
// Single objects. --------------------------------------------------------------------------------------------------

template <class Op, class T>
VormStatus longMeasure(Runs<Op, T> runs, std::ptrdiff_t n, T* dst)
{
    const LastTerms<T> last(n);
    const Lanes<T> sums = withLastRegisters<T>(n, [&](auto registers, auto hasGroups) VORM_INLINE_LAMBDA {
        return sumsOfOne<Op, registers, hasGroups>(runs, n, last);
    });
    entry(dst, 0) = Op::result(Op::fromZero(folded(sums)));
    return StatusOk;
}

template <class Op, class T, class Object>
T longMeasureAnywhere(const Objects<Op, Object>& object, int rows, int columns)
{
    constexpr int group = sumsOf<T>, most = 4 * group;
    T terms[Op::sources][most];
    Lanes<T> sums[sumRegisters];
    for (auto& sum : sums) sum = T(0);
    int gathered = 0;
    const auto add = [&] {
        const T* p[Op::sources];
        for (int s = 0; s < Op::sources; ++s) p[s] = terms[s];
        std::ptrdiff_t i = 0;
        addGroups<Op>(p, gathered, i, sums);
        gathered = 0;
    };
    for (int r = 0; r < rows; ++r)
        for (int c = 0; c < columns; ++c) {
            for (int s = 0; s < Op::sources; ++s) terms[s][gathered] = object.source[s](r, c);
            if (++gathered == most) add();
        }
    while (gathered % group != 0) {  // with terms that are zero
        for (auto& source : terms) source[gathered] = 0;
        ++gathered;
    }
    add();
    return Op::result(folded(united(sums)));
}

// Runs. ------------------------------------------------------------------------------------------------------------

// Where consecutive objects of a source begin. One that all share has a list with one entry.
template <bool mayBeCommon, class T>
VORM_INLINE auto beginnings(const StridedElements<const T>& e, int first)
{
    return [p = e.at(first), object = e.object](int l) VORM_INLINE_LAMBDA { return advance(p, l * object); };
}
template <bool mayBeCommon, class T>
VORM_INLINE auto beginnings(const ListedElements<const T>& e, int first)
{
    if constexpr (mayBeCommon)  // compilers would make a second loop for a step of 1
        return [pp = opaque(e.pp + first * e.step), e](int l)
                   VORM_INLINE_LAMBDA { return advance(pp[l * e.step], e.shift); };
    else
        return [pp = e.pp + first, shift = e.shift](int l) VORM_INLINE_LAMBDA { return advance(pp[l], shift); };
}

// Fewer objects than a register has lanes.
template <class Op, class T, class Elements>
[[gnu::noinline]] void fewRuns(const Sources<Op, Elements> src, std::ptrdiff_t n, T* dst, int count)
{
    for (int object = 0; object < count; ++object) {
        Runs<Op, T> runs;
        for (int s = 0; s < Op::sources; ++s) runs.p[s] = src.of[s].at(object);
        if (n <= shortTerms)
            entry(dst, object) = shortMeasure(runs, int(n));
        else
            longMeasure(runs, n, dst + object);
    }
}

// The terms of a Number of objects.
template <class Number, int n, class Op, class T, class Elements, class Common>
VORM_INLINE void termsOf(const Sources<Op, Elements>& src, const Common& common, int first, Number (&terms)[n])
{
    const auto rows = [&](int s) VORM_INLINE_LAMBDA {
        const auto object = beginnings<false>(src.of[s], first);
        Rows<T, Number::width> r;
        for (int l = 0; l < Number::width; ++l) r.at[l] = object(l);
        return r;
    };
    if constexpr (Op::sources == 1) {
        turn(rows(0), terms);
        for (auto& term : terms) term = term * term;
    } else if constexpr (std::is_same_v<Common, std::nullptr_t>) {
        turn(ProductRows<Rows<T, Number::width>, Rows<T, Number::width>>{rows(0), rows(1)}, terms);
    } else {
        turn(ProductRows<Rows<T, Number::width>, Common>{rows(0), common}, terms);
    }
}

template <class Op, int n, class T, class Elements, class Common>
VORM_INLINE void shortRuns(const Sources<Op, Elements>& src, const Common& common, T* dst, int count)
{
    storeResults<Wide<T>>(
        dst, count,
        [&]<class Number>(int first) VORM_INLINE_LAMBDA {
            Number terms[n];
            termsOf<Number, n, Op, T>(src, common, first, terms);
            return Op::result(leftToRight(constant<n>, [&](auto k) VORM_INLINE_LAMBDA { return terms[k]; }));
        },
        [&] { fewRuns(src, n, dst, count); });
}
template <class Op, int n, class T, class Elements>
VORM_INLINE void packedRuns(const Sources<Op, Elements>& src, T* dst, int count)
{
    constexpr bool isProduct = Op::sources == 2;
    const bool isCommon = src.of[Op::sources - 1].isCommon();
    storeResults<Wide<T>>(
        dst, count,
        [&]<class Number>(int first) VORM_INLINE_LAMBDA {
            Number terms[n];
            loadPacked<n>(src.of[0].at(first), terms);
            if constexpr (isProduct) {
                Number others[n];
                if (isCommon)
                    repeatPacked<n>(src.of[1].p, others);
                else
                    loadPacked<n>(src.of[1].at(first), others);
                for (int k = 0; k < n; ++k) terms[k] = terms[k] * others[k];
            } else {
                for (auto& term : terms) term = term * term;
            }
            turnPacked(terms);
            return Op::result(leftToRight(constant<n>, [&](auto k) VORM_INLINE_LAMBDA { return terms[k]; }));
        },
        [&] { fewRuns(src, n, dst, count); });
}

// Each length in a function of its own.
template <class Op, int n, class T, class Elements>
[[gnu::noinline]] void runsOfLength(const Sources<Op, Elements> src, T* dst, int count)
{
    if constexpr (n <= 3 && std::is_same_v<Elements, StridedElements<const T>>) {
        const auto isPacked = [](const auto& e) { return e.isCommon() || e.object == n * int{sizeof(T)}; };
        if (isPacked(src.of[0]) && isPacked(src.of[Op::sources - 1])) {
            packedRuns<Op, n>(src, dst, count);
            return;
        }
    }
    if constexpr (n < 3) {
        fewRuns(src, n, dst, count);
    } else {
        if constexpr (Op::sources == 2)
            if (src.of[1].isCommon()) {
                shortRuns<Op, n>(src, CommonRow<T, n>(src.of[1].at(0)), dst, count);
                return;
            }
        shortRuns<Op, n>(src, nullptr, dst, count);
    }
}

// More terms: a register of sums for each object, folded together. The next object's wait, or they would not fit the
// registers.
template <class Op, class T, class Sums, class Elements>
VORM_INLINE void longRuns(const Sources<Op, Elements>& src, std::ptrdiff_t n, T* dst, int count,
                          const Sums& sumsOfObject)
{
    storeResults<Lanes<T>>(
        dst, count,
        [&]<class Number>(int first) VORM_INLINE_LAMBDA {
            Number sums[Number::width];
            const auto a = beginnings<false>(src.of[0], first);
            const auto b = beginnings<true>(src.of[Op::sources - 1], first);
            unrolled<Number::width>([&](auto l) VORM_INLINE_LAMBDA {
                Runs<Op, T> runs;
                runs.p[0] = a(l);
                if constexpr (Op::sources == 2) runs.p[1] = b(l);
                sums[l] = settled(sumsOfObject(runs));
            });
            return Op::result(Op::fromZero(folded(sums)));
        },
        [&] { fewRuns(src, n, dst, count); });
}
template <class Op, int whole, bool hasRest, class Rest, class T, class Elements>
[[gnu::noinline]] void longRunsOfLength(const Sources<Op, Elements> src, Rest rest, std::ptrdiff_t n, T* dst, int count)
{
    longRuns<Op>(src, n, dst, count, [rest](const Runs<Op, T>& runs) VORM_INLINE_LAMBDA {
        return sumsAlong<Op, whole, hasRest>(runs, rest);
    });
}
template <int behind, class Op, class T, class Elements>
[[gnu::noinline]] void longRunsOfRegisters(const Sources<Op, Elements> src, std::ptrdiff_t n, T* dst, int count)
{
    longRuns<Op>(src, n, dst, count,
                 [n](const Runs<Op, T>& runs) VORM_INLINE_LAMBDA { return sumsOfRegisters<Op, behind>(runs, n); });
}
template <class Op, class T, class Elements>
[[gnu::noinline]] void longRunsOfAnyLength(const Sources<Op, Elements> src, std::ptrdiff_t n, T* dst, int count)
{
    longRuns<Op>(src, n, dst, count,
                 [n](const Runs<Op, T>& runs) VORM_INLINE_LAMBDA { return sumsAlong<Op>(runs, n); });
}
template <int n, class Op, class T, class Elements>
VORM_INLINE void longRunsOfLength(const Sources<Op, Elements>& src, T* dst, int count)
{
    constexpr int width = narrow<T>;
    longRunsOfLength<Op, n / width, n % width != 0>(src, constant<n % width>, n, dst, count);
}

template <class Op, class T, class Elements>
void measureRuns(const Sources<Op, Elements>& src, std::ptrdiff_t n, T* dst, int count)
{
    switch (n) {
    case 1: return fewRuns(src, 1, dst, count);
    case 2: return runsOfLength<Op, 2>(src, dst, count);
    case 3: return runsOfLength<Op, 3>(src, dst, count);
    case 4: return runsOfLength<Op, 4>(src, dst, count);
    case 5: return runsOfLength<Op, 5>(src, dst, count);
    case 6: return runsOfLength<Op, 6>(src, dst, count);
    default: break;
    }
    if constexpr (Op::sources == 1) {  // square matrices of order 3 to 6
        switch (n) {
        case 9: return longRunsOfLength<9>(src, dst, count);
        case 16: return longRunsOfLength<16>(src, dst, count);
        case 25: return longRunsOfLength<25>(src, dst, count);
        case 36: return longRunsOfLength<36>(src, dst, count);
        default: break;
        }
    }
    if (n < sumsOf<T>)
        return withRegisters<T>(int(n), [&](auto whole, auto hasRest) VORM_INLINE_LAMBDA {
            longRunsOfLength<Op, whole, hasRest>(src, int(n) % narrow<T>, n, dst, count);
        });
    // The commonest lengths that need no tests for each object, like 8x8 matrices and a dozen doubles.
    if (n % sumsOf<T> == 0) return longRunsOfRegisters<0>(src, n, dst, count);
    if (n % sumsOf<T> == sumsOf<T> / 2) return longRunsOfRegisters<sumRegisters / 2>(src, n, dst, count);
    longRunsOfAnyLength(src, n, dst, count);
}

// Elements anywhere. -----------------------------------------------------------------------------------------------

template <class Op, class T, class Elements>
void measureAnywhere(const Sources<Op, Elements>& src, int rows, int columns, T* dst, int count)
{
    using Object = std::remove_cvref_t<decltype(src.of[0][0])>;
    const std::ptrdiff_t n = std::ptrdiff_t{rows} * columns;
    for (int object = 0; object < count; ++object) {
        Objects<Op, Object> one;
        for (int s = 0; s < Op::sources; ++s) one.source[s] = src.of[s][object];
        entry(dst, object) =
            n <= shortTerms ? shortMeasure<Op, T>(one, rows, columns) : longMeasureAnywhere<Op, T>(one, rows, columns);
    }
}

// Planes. ----------------------------------------------------------------------------------------------------------

// The numbers of objects along a plane, from p on.
template <class Number, class T>
VORM_INLINE Number loadAlong(const T* p)
{
    if constexpr (registersIn < Number >> 1)
        return Number::each(
            [&](auto k) VORM_INLINE_LAMBDA { return RegisterIn<Number>::load(p + k * RegisterIn<Number>::width); });
    else
        return Number::load(p);
}

// The planes of a call in the order of the tables, each object's elements in rows and columns.
template <class Op, class T>
struct Planes {
    using Source = TabledElements<const T>;
    Sources<Op, Source> src;
    int rows, columns;

    std::ptrdiff_t terms() const { return std::ptrdiff_t{rows} * columns; }
    [[gnu::noinline]] static void few(Planes planes, T* dst, int count)
    {
        measureAnywhere<Op>(planes.src, planes.rows, planes.columns, dst, count);
    }
    // The k-th term of all objects of a number: source s is along a plane, or common to all.
    template <class Number, bool secondIsCommon>
    VORM_INLINE Number term(std::ptrdiff_t k, int first) const
    {
        return termOf<Op, Number>([&](auto s) VORM_INLINE_LAMBDA {
            const Source& source = src.of[s];
            if constexpr (s == 1 && secondIsCommon)
                return Number(T(elementAt(source.pp[k], source.shift)));
            else
                return loadAlong<Number>(advance(source.pp[k], source.shift + first * std::ptrdiff_t{sizeof(T)}));
        });
    }
};

// Each short length in a function of its own, which finds the planes once.
template <class Op, int n, bool secondIsCommon, class T>
[[gnu::noinline]] void planesOfLength(const Planes<Op, T> planes, T* dst, int count)
{
    const auto& src = planes.src;
    const T* plane[Op::sources][n];
    for (int s = 0; s < Op::sources; ++s)
        for (int k = 0; k < n; ++k) plane[s][k] = advance(src.of[s].pp[k], src.of[s].shift);
    T common[n];
    if constexpr (secondIsCommon)
        for (int k = 0; k < n; ++k) common[k] = elementAt(plane[1][k], 0);
    storeResults<Several<Wide<T>, 2>>(
        dst, count,
        [&]<class Number>(int first) VORM_INLINE_LAMBDA {
            return Op::result(leftToRight(constant<n>, [&](auto k) VORM_INLINE_LAMBDA {
                return termOf<Op, Number>([&](auto s) VORM_INLINE_LAMBDA {
                    if constexpr (s == 1 && secondIsCommon)
                        return Number(common[k]);
                    else
                        return loadAlong<Number>(plane[s][k] + first);
                });
            }));
        },
        [&] { Planes<Op, T>::few(planes, dst, count); });
}
template <int registers, bool hasGroups, bool secondIsCommon, class Op, class T>
[[gnu::noinline]] void longPlanes(const Planes<Op, T> planes, std::ptrdiff_t n, T* dst, int count)
{
    storeResults<Several<Wide<T>, 2>>(
        dst, count,
        [&]<class Number>(int first) VORM_INLINE_LAMBDA {
            return Op::result(sumOfNumbers<Op, Number, registers, hasGroups>(
                n, [&](std::ptrdiff_t k)
                       VORM_INLINE_LAMBDA { return planes.template term<Number, secondIsCommon>(k, first); }));
        },
        [&] { Planes<Op, T>::few(planes, dst, count); });
}
template <class Op, int n, class T>
[[gnu::noinline]] void longPlanesOfLength(const Planes<Op, T> planes, T* dst, int count)
{
    storeResults<Several<Wide<T>, 2>>(
        dst, count,
        [&]<class Number>(int first) VORM_INLINE_LAMBDA {
            return Op::result(sumOfNumbers<Op, n>(
                [&](auto k) VORM_INLINE_LAMBDA { return planes.template term<Number, false>(k, first); }));
        },
        [&] { Planes<Op, T>::few(planes, dst, count); });
}
template <bool secondIsCommon, class Op, class T>
VORM_INLINE void planesOfAnyLength(const Planes<Op, T>& planes, T* dst, int count)
{
    const std::ptrdiff_t n = planes.terms();
    switch (n) {
    case 1: return planesOfLength<Op, 1, secondIsCommon>(planes, dst, count);
    case 2: return planesOfLength<Op, 2, secondIsCommon>(planes, dst, count);
    case 3: return planesOfLength<Op, 3, secondIsCommon>(planes, dst, count);
    case 4: return planesOfLength<Op, 4, secondIsCommon>(planes, dst, count);
    case 5: return planesOfLength<Op, 5, secondIsCommon>(planes, dst, count);
    case 6: return planesOfLength<Op, 6, secondIsCommon>(planes, dst, count);
    default: break;
    }
    if (n > sumsOf<T>) return longPlanes<sumRegisters, true, secondIsCommon>(planes, n, dst, count);
    withLastRegisters<T>(n, [&](auto registers, auto hasGroups) VORM_INLINE_LAMBDA {
        if constexpr (!hasGroups) longPlanes<registers, false, secondIsCommon>(planes, n, dst, count);
    });
}

template <class Op, class T>
void measurePlanes(const Sources<Op, TabledElements<const T>>& src, int rows, int columns, T* dst, int count)
{
    const Planes<Op, T> planes{src, rows, columns};
    if constexpr (Op::sources == 2)
        if (src.of[1].isCommon()) return planesOfAnyLength<true>(planes, dst, count);
    if constexpr (Op::sources == 1) {  // square matrices of order 3 to 6
        switch (planes.terms()) {
        case 9: return longPlanesOfLength<Op, 9>(planes, dst, count);
        case 16: return longPlanesOfLength<Op, 16>(planes, dst, count);
        case 25: return longPlanesOfLength<Op, 25>(planes, dst, count);
        case 36: return longPlanesOfLength<Op, 36>(planes, dst, count);
        default: break;
        }
    }
    planesOfAnyLength<false>(planes, dst, count);
}

// Traces. ----------------------------------------------------------------------------------------------------------

// The diagonals of n elements, so many bytes apart.
template <int n, class T, class Elements>
[[gnu::noinline]] void tracesOfOrder(const Elements src, T* dst, int count)
{
    const std::ptrdiff_t step = src.row + src.column;
    const auto trace = [&](const T* p, int object) VORM_INLINE_LAMBDA {
        entry(dst, object) =
            leftToRight(constant<n>, [&](auto i) VORM_INLINE_LAMBDA { return T(elementAt(p, i * step)); });
    };
    int object = 0;
    for (; object + 4 <= count; object += 4) {
        const auto beginning = beginnings<false>(src, object);
        unrolled<4>([&](auto l) VORM_INLINE_LAMBDA { trace(beginning(l), object + l); });
    }
    for (; object < count; ++object) trace(beginnings<false>(src, object)(0), object);
}

// Four sums that do not wait for each other.
template <class T, class Elements>
VORM_INLINE void tracesOfAnyOrder(const Elements& src, int n, T* dst, int count)
{
    const std::ptrdiff_t step = src.row + src.column;
    const auto some = [&](auto objects, int object) VORM_INLINE_LAMBDA {
        const T* p[objects];
        T sums[objects];
        const auto beginning = beginnings<false>(src, object);
        for (int l = 0; l < objects; ++l) p[l] = beginning(l), sums[l] = elementAt(p[l], 0);
        for (std::ptrdiff_t i = 1, at = step; i < n; ++i, at += step)
            for (int l = 0; l < objects; ++l) sums[l] = sums[l] + elementAt(p[l], at);
        for (int l = 0; l < objects; ++l) entry(dst, object + l) = sums[l];
    };
    int object = 0;
    for (; object + 4 <= count; object += 4) some(constant<4>, object);
    for (; object < count; ++object) some(constant<1>, object);
}

template <class T, class Elements>
void traces(const Elements& src, int n, T* dst, int count)
{
    if constexpr (requires { src.at(0); }) {
        switch (n) {
        case 2: return tracesOfOrder<2>(src, dst, count);
        case 3: return tracesOfOrder<3>(src, dst, count);
        case 4: return tracesOfOrder<4>(src, dst, count);
        case 5: return tracesOfOrder<5>(src, dst, count);
        case 6: return tracesOfOrder<6>(src, dst, count);
        default: return tracesOfAnyOrder(src, n, dst, count);
        }
    }
    for (int object = 0; object < count; ++object) {
        const auto a = src[object];
        entry(dst, object) = leftToRight(n, [&](int i) VORM_INLINE_LAMBDA { return T(a(i, i)); });
    }
}

template <class T>
void tracesOfPlanes(const TabledElements<const T>& src, int n, T* dst, int count)
{
    storeResults<Several<Wide<T>, 4>>(
        dst, count,
        [&]<class Number>(int first) VORM_INLINE_LAMBDA {
            return leftToRight(n, [&](int i) VORM_INLINE_LAMBDA { return loadAlong<Number>(src.plane(i, i) + first); });
        },
        [&] { traces(src, n, dst, count); });
}

#define MEASURES_OF(Op, T)                                                                                 \
    template VormStatus longMeasure(Runs<Op, T>, std::ptrdiff_t, T*);                                      \
    template T longMeasureAnywhere<Op, T>(const Objects<Op, StridedElements<const T>::Object>&, int, int); \
    template T longMeasureAnywhere<Op, T>(const Objects<Op, TabledElements<const T>::Object>&, int, int);  \
    template void measureRuns(const Sources<Op, StridedElements<const T>>&, std::ptrdiff_t, T*, int);      \
    template void measureRuns(const Sources<Op, ListedElements<const T>>&, std::ptrdiff_t, T*, int);       \
    template void measureAnywhere(const Sources<Op, StridedElements<const T>>&, int, int, T*, int);        \
    template void measureAnywhere(const Sources<Op, ListedElements<const T>>&, int, int, T*, int);         \
    template void measureAnywhere(const Sources<Op, TabledElements<const T>>&, int, int, T*, int);         \
    template void measurePlanes(const Sources<Op, TabledElements<const T>>&, int, int, T*, int);
#define MEASURES_ALL(T)                                                  \
    MEASURES_OF(Dot, T)                                                  \
    MEASURES_OF(Norm, T)                                                 \
    template void traces(const StridedElements<const T>&, int, T*, int); \
    template void traces(const ListedElements<const T>&, int, T*, int);  \
    template void traces(const TabledElements<const T>&, int, T*, int);  \
    template void tracesOfPlanes(const TabledElements<const T>&, int, T*, int);

}  // namespace vorm::measures
