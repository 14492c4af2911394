// The bodies behind objects.hpp and sums.hpp.
#pragma once

#include "frame/blocks.hpp"
#include "frame/several.hpp"
#include "measures/objects.hpp"
#include "measures/short_runs.hpp"

namespace vorm::measures {

// Objects in registers as long as there are enough; results never share memory, and no object fails. results(first)
// makes a Number of them.
template <class Widest, class T, class Results>
VORM_INLINE void storeResults(T* dst, int count, const Results& results)
{
    inBlocks<Widest>(
        count, []<class>(int) VORM_INLINE_LAMBDA { return true; },
        [&]<class Number>(int first) VORM_INLINE_LAMBDA {
            const Number result = results.template operator()<Number>(first);
            if constexpr (inLanes<Number>)
                for (int k = 0; k < registersIn<Number>; ++k)
                    registerOf(result, k).store(dst + first + k * RegisterIn<Number>::width);
            else
                entry(dst, first) = result;
            return VormStatus{StatusOk};
        });
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
template <class Op, class T>
VORM_INLINE Lanes<T> shortOfAGroup(const Runs<Op, T>& runs, int n)
{
    return withRegisters<T>(n, [&](auto whole, auto hasRest)
                                   VORM_INLINE_LAMBDA { return sumsAlong<Op, whole, hasRest>(runs, n % narrow<T>); });
}

// Single objects. --------------------------------------------------------------------------------------------------

template <class Op, class T>
T longMeasure(const Runs<Op, T>& runs, std::ptrdiff_t n)
{
    const Lanes<T> sums = n < sumsOf<T> ? shortOfAGroup(runs, int(n)) : sumsAlong(runs, n);
    return Op::result(Op::fromZero(folded(sums)));
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

template <class Op, class T, class Elements>
VORM_INLINE Runs<Op, T> runsOf(const Sources<Op, Elements>& src, int n)
{
    Runs<Op, T> runs;
    for (int s = 0; s < Op::sources; ++s) runs.p[s] = src.of[s].at(n);
    return runs;
}

// Runs. ------------------------------------------------------------------------------------------------------------

// The terms of a Number of objects.
template <class Number, int n, class Op, class T, class Elements, class Common>
VORM_INLINE void termsOf(const Sources<Op, Elements>& src, const Common& common, int first, Number (&terms)[n])
{
    if constexpr (!inLanes<Number>) {
        const Runs<Op, T> runs = runsOf<Op, T>(src, first);
        for (int k = 0; k < n; ++k)
            terms[k] = termOf<Op, T>([&](auto s) VORM_INLINE_LAMBDA { return T(elementAt(runs.p[s] + k, 0)); });
    } else {
        const auto rows = [&](int s) VORM_INLINE_LAMBDA {
            Rows<T, Number::width> r;
            for (int l = 0; l < Number::width; ++l) r.at[l] = src.of[s].at(first + l);
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
}

template <class Op, int n, class T, class Elements, class Common>
VORM_INLINE void shortRuns(const Sources<Op, Elements>& src, const Common& common, T* dst, int count)
{
    storeResults<Wide<T>>(dst, count, [&]<class Number>(int first) VORM_INLINE_LAMBDA {
        Number terms[n];
        termsOf<Number, n, Op, T>(src, common, first, terms);
        return Op::result(leftToRight(constant<n>, [&](auto k) VORM_INLINE_LAMBDA { return terms[k]; }));
    });
}
template <class Op, int n, class T, class Elements>
VORM_INLINE void packedRuns(const Sources<Op, Elements>& src, T* dst, int count)
{
    constexpr bool isProduct = Op::sources == 2;
    const bool isCommon = src.of[Op::sources - 1].isCommon();
    storeResults<Wide<T>>(dst, count, [&]<class Number>(int first) VORM_INLINE_LAMBDA {
        Number terms[n];
        if constexpr (!inLanes<Number>) {
            termsOf<Number, n, Op, T>(src, nullptr, first, terms);
        } else {
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
        }
        return Op::result(leftToRight(constant<n>, [&](auto k) VORM_INLINE_LAMBDA { return terms[k]; }));
    });
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
        Sources<Op, Elements> inRow = src;
        for (auto& source : inRow.of) source.column = sizeof(T);
        measureAnywhere<Op>(inRow, 1, n, dst, count);
        return;
    } else if constexpr (Op::sources == 2) {
        if (src.of[1].isCommon()) {
            shortRuns<Op, n>(src, CommonRow<T, n>(src.of[1].at(0)), dst, count);
            return;
        }
    }
    if constexpr (n >= 3) shortRuns<Op, n>(src, nullptr, dst, count);
}

// More terms: a register of sums for each object, folded together.
template <class Op, class T, class Sums, class Elements>
VORM_INLINE void longRuns(const Sources<Op, Elements>& src, T* dst, int count, const Sums& sumsOfObject)
{
    storeResults<Lanes<T>>(dst, count, [&]<class Number>(int first) VORM_INLINE_LAMBDA {
        if constexpr (inLanes<Number>) {
            Number sums[Number::width];
            for (int l = 0; l < Number::width; ++l) sums[l] = sumsOfObject(runsOf<Op, T>(src, first + l));
            return Op::result(Op::fromZero(folded(sums)));
        } else {
            return Op::result(Op::fromZero(folded(sumsOfObject(runsOf<Op, T>(src, first)))));
        }
    });
}
template <class Op, int whole, bool hasRest, class Rest, class T, class Elements>
[[gnu::noinline]] void longRunsOfLength(const Sources<Op, Elements> src, Rest rest, T* dst, int count)
{
    longRuns<Op>(src, dst, count, [rest](const Runs<Op, T>& runs) VORM_INLINE_LAMBDA {
        return sumsAlong<Op, whole, hasRest>(runs, rest);
    });
}
template <int behind, class Op, class T, class Elements>
[[gnu::noinline]] void longRunsOfRegisters(const Sources<Op, Elements> src, std::ptrdiff_t n, T* dst, int count)
{
    longRuns<Op>(src, dst, count,
                 [n](const Runs<Op, T>& runs) VORM_INLINE_LAMBDA { return sumsOfRegisters<Op, behind>(runs, n); });
}
template <int n, class Op, class T, class Elements>
VORM_INLINE void longRunsOfLength(const Sources<Op, Elements>& src, T* dst, int count)
{
    constexpr int width = narrow<T>;
    longRunsOfLength<Op, n / width, n % width != 0>(src, constant<n % width>, dst, count);
}

template <class Op, class T, class Elements>
void measureRuns(const Sources<Op, Elements>& src, std::ptrdiff_t n, T* dst, int count)
{
    switch (n) {
    case 1: return runsOfLength<Op, 1>(src, dst, count);
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
            longRunsOfLength<Op, whole, hasRest>(src, int(n) % narrow<T>, dst, count);
        });
    // The commonest lengths that need no tests for each object, like 8x8 matrices and a dozen doubles.
    if (n % sumsOf<T> == 0) return longRunsOfRegisters<0>(src, n, dst, count);
    if (n % sumsOf<T> == sumsOf<T> / 2) return longRunsOfRegisters<sumRegisters / 2>(src, n, dst, count);
    longRuns<Op>(src, dst, count, [n](const Runs<Op, T>& runs) VORM_INLINE_LAMBDA { return sumsAlong<Op>(runs, n); });
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

// The numbers of objects from the first on.
template <class Number, class T>
VORM_INLINE Number loadAlong(const T* plane)
{
    if constexpr (registersIn < Number >> 1)
        return Number::each(
            [&](auto k) VORM_INLINE_LAMBDA { return RegisterIn<Number>::load(plane + k * RegisterIn<Number>::width); });
    else if constexpr (inLanes<Number>)
        return Number::load(plane);
    else
        return elementAt(plane, 0);
}

template <class Op, class T>
using PlaneSources = Sources<Op, TabledElements<const T>>;

// The k-th element of all objects of a number, of source s: of what all objects share, or along a plane.
template <class Number, bool secondIsCommon, class Op, class T>
VORM_INLINE Number planeTerm(const PlaneSources<Op, T>& src, std::ptrdiff_t k, int first)
{
    return termOf<Op, Number>([&](auto s) VORM_INLINE_LAMBDA {
        const T* const plane = advance(src.of[s].pp[k], src.of[s].shift);
        if constexpr (s == 1 && secondIsCommon)
            return Number(T(elementAt(plane, 0)));
        else
            return loadAlong<Number>(plane + first);
    });
}

// Each short length in a function of its own, which finds the planes once.
template <class Op, int n, bool secondIsCommon, class T>
[[gnu::noinline]] void planesOfLength(const PlaneSources<Op, T> src, T* dst, int count)
{
    const T* plane[Op::sources][n];
    for (int s = 0; s < Op::sources; ++s)
        for (int k = 0; k < n; ++k) plane[s][k] = advance(src.of[s].pp[k], src.of[s].shift);
    T common[n];
    if constexpr (secondIsCommon)
        for (int k = 0; k < n; ++k) common[k] = elementAt(plane[1][k], 0);
    storeResults<Several<Wide<T>, 2>>(dst, count, [&]<class Number>(int first) VORM_INLINE_LAMBDA {
        return Op::result(leftToRight(constant<n>, [&](auto k) VORM_INLINE_LAMBDA {
            return termOf<Op, Number>([&](auto s) VORM_INLINE_LAMBDA {
                if constexpr (s == 1 && secondIsCommon)
                    return Number(common[k]);
                else
                    return loadAlong<Number>(plane[s][k] + first);
            });
        }));
    });
}
template <class Op, int n, class T>
[[gnu::noinline]] void longPlanesOfLength(const PlaneSources<Op, T> src, T* dst, int count)
{
    storeResults<Several<Wide<T>, 2>>(dst, count, [&]<class Number>(int first) VORM_INLINE_LAMBDA {
        return Op::result(
            sumOfNumbers<Op, n>([&](auto k) VORM_INLINE_LAMBDA { return planeTerm<Number, false>(src, k, first); }));
    });
}
template <bool secondIsCommon, class Op, class T>
VORM_INLINE void planesOfAnyLength(const PlaneSources<Op, T>& src, std::ptrdiff_t n, T* dst, int count)
{
    switch (n) {
    case 3: return planesOfLength<Op, 3, secondIsCommon>(src, dst, count);
    case 4: return planesOfLength<Op, 4, secondIsCommon>(src, dst, count);
    case 5: return planesOfLength<Op, 5, secondIsCommon>(src, dst, count);
    case 6: return planesOfLength<Op, 6, secondIsCommon>(src, dst, count);
    default: break;
    }
    storeResults<Several<Wide<T>, 2>>(dst, count, [&]<class Number>(int first) VORM_INLINE_LAMBDA {
        const auto term = [&](std::ptrdiff_t k)
                              VORM_INLINE_LAMBDA { return planeTerm<Number, secondIsCommon>(src, k, first); };
        return Op::result(n <= shortTerms ? leftToRight(int(n), term) : sumOfNumbers<Op, Number>(n, term));
    });
}

template <class Op, class T>
void measurePlanes(const Sources<Op, TabledElements<const T>>& src, std::ptrdiff_t n, T* dst, int count)
{
    if constexpr (Op::sources == 2) {
        if (src.of[1].isCommon()) return planesOfAnyLength<true>(src, n, dst, count);
    } else {  // matrices of order 3 to 6
        switch (n) {
        case 9: return longPlanesOfLength<Op, 9>(src, dst, count);
        case 16: return longPlanesOfLength<Op, 16>(src, dst, count);
        case 25: return longPlanesOfLength<Op, 25>(src, dst, count);
        case 36: return longPlanesOfLength<Op, 36>(src, dst, count);
        default: break;
        }
    }
    planesOfAnyLength<false>(src, n, dst, count);
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
    for (; object + 4 <= count; object += 4)
        unrolled<4>([&](auto l) VORM_INLINE_LAMBDA { trace(src.at(object + l), object + l); });
    for (; object < count; ++object) trace(src.at(object), object);
}

// Four sums that do not wait for each other.
template <class T, class Elements>
VORM_INLINE void tracesOfAnyOrder(const Elements& src, int n, T* dst, int count)
{
    const std::ptrdiff_t step = src.row + src.column;
    const auto some = [&](auto objects, int object) VORM_INLINE_LAMBDA {
        const T* p[objects];
        T sums[objects];
        for (int l = 0; l < objects; ++l) p[l] = src.at(object + l), sums[l] = elementAt(p[l], 0);
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
    storeResults<Several<Wide<T>, 4>>(dst, count, [&]<class Number>(int first) VORM_INLINE_LAMBDA {
        return leftToRight(n, [&](int i) VORM_INLINE_LAMBDA { return loadAlong<Number>(src.plane(i, i) + first); });
    });
}

#define MEASURES_OF(Op, T)                                                                                 \
    template T longMeasure(const Runs<Op, T>&, std::ptrdiff_t);                                            \
    template T longMeasureAnywhere<Op, T>(const Objects<Op, StridedElements<const T>::Object>&, int, int); \
    template T longMeasureAnywhere<Op, T>(const Objects<Op, TabledElements<const T>::Object>&, int, int);  \
    template void measureRuns(const Sources<Op, StridedElements<const T>>&, std::ptrdiff_t, T*, int);      \
    template void measureRuns(const Sources<Op, ListedElements<const T>>&, std::ptrdiff_t, T*, int);       \
    template void measureAnywhere(const Sources<Op, StridedElements<const T>>&, int, int, T*, int);        \
    template void measureAnywhere(const Sources<Op, ListedElements<const T>>&, int, int, T*, int);         \
    template void measureAnywhere(const Sources<Op, TabledElements<const T>>&, int, int, T*, int);         \
    template void measurePlanes(const Sources<Op, TabledElements<const T>>&, std::ptrdiff_t, T*, int);
#define MEASURES_ALL(T)                                                  \
    MEASURES_OF(Dot, T)                                                  \
    MEASURES_OF(Norm, T)                                                 \
    template void traces(const StridedElements<const T>&, int, T*, int); \
    template void traces(const ListedElements<const T>&, int, T*, int);  \
    template void traces(const TabledElements<const T>&, int, T*, int);  \
    template void tracesOfPlanes(const TabledElements<const T>&, int, T*, int);

}  // namespace vorm::measures
