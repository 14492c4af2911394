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

// Single objects. --------------------------------------------------------------------------------------------------

template <class Op, class T>
T longMeasure(const Runs<Op, T>& runs, std::ptrdiff_t n)
{
    return Op::result(folded(sumsAlong(runs, n)));
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
    if constexpr (turnsPacked<n> && std::is_same_v<Elements, StridedElements<const T>>) {
        const auto isPacked = [](const auto& e) { return e.isCommon() || e.object == n * int{sizeof(T)}; };
        if (isPacked(src.of[0]) && isPacked(src.of[Op::sources - 1])) {
            packedRuns<Op, n>(src, dst, count);
            return;
        }
    }
    if constexpr (Op::sources == 2) {
        if (src.of[1].isCommon()) {
            shortRuns<Op, n>(src, CommonRow<T, n>(src.of[1].at(0)), dst, count);
            return;
        }
    }
    shortRuns<Op, n>(src, nullptr, dst, count);
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
template <class Op, int n, class T, class Elements>
[[gnu::noinline]] void longRunsOfLength(const Sources<Op, Elements> src, T* dst, int count)
{
    longRuns<Op>(src, dst, count, [](const Runs<Op, T>& runs) VORM_INLINE_LAMBDA { return sumsAlong<Op, n>(runs); });
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
        case 9: return longRunsOfLength<Op, 9>(src, dst, count);
        case 16: return longRunsOfLength<Op, 16>(src, dst, count);
        case 25: return longRunsOfLength<Op, 25>(src, dst, count);
        case 36: return longRunsOfLength<Op, 36>(src, dst, count);
        default: break;
        }
    }
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

template <class Op, class T>
void measurePlanes(const Sources<Op, TabledElements<const T>>& src, std::ptrdiff_t n, T* dst, int count)
{
    storeResults<Several<Wide<T>, 4>>(dst, count, [&]<class Number>(int first) VORM_INLINE_LAMBDA {
        const auto term = [&](std::ptrdiff_t k) VORM_INLINE_LAMBDA {
            return termOf<Op, Number>([&](auto s) VORM_INLINE_LAMBDA {
                const auto& e = src.of[s];
                const T* const plane = advance(e.pp[k], e.shift);
                if (e.isCommon()) return Number(T(elementAt(plane, 0)));
                if constexpr (registersIn < Number >> 1)
                    return Number::each([&](auto r) VORM_INLINE_LAMBDA {
                        return Number::One::load(plane + first + r * Number::One::width);
                    });
                else if constexpr (inLanes<Number>)
                    return Number::load(plane + first);
                else
                    return T(elementAt(plane + first, 0));
            });
        };
        return Op::result(n <= shortTerms ? leftToRight(int(n), term) : sumOfNumbers<Op, Number>(n, term));
    });
}

// Traces. ----------------------------------------------------------------------------------------------------------

template <class T, class Elements>
void traces(const Elements& src, int n, T* dst, int count)
{
    constexpr int some = 4;  // sums that do not wait for each other
    int object = 0;
    for (; object + some <= count; object += some) {
        T sums[some];
        for (int l = 0; l < some; ++l) sums[l] = src[object + l](0, 0);
        for (int i = 1; i < n; ++i)
            for (int l = 0; l < some; ++l) sums[l] = sums[l] + src[object + l](i, i);
        for (int l = 0; l < some; ++l) entry(dst, object + l) = sums[l];
    }
    for (; object < count; ++object) {
        const auto a = src[object];
        entry(dst, object) = leftToRight(n, [&](int i) VORM_INLINE_LAMBDA { return T(a(i, i)); });
    }
}

template <class T>
void tracesOfPlanes(const TabledElements<const T>& src, int n, T* dst, int count)
{
    storeResults<Several<Wide<T>, 4>>(dst, count, [&]<class Number>(int first) VORM_INLINE_LAMBDA {
        return leftToRight(n, [&](int i) VORM_INLINE_LAMBDA {
            const T* const plane = src.plane(i, i) + first;
            if constexpr (registersIn < Number >> 1)
                return Number::each(
                    [&](auto r) VORM_INLINE_LAMBDA { return Number::One::load(plane + r * Number::One::width); });
            else if constexpr (inLanes<Number>)
                return Number::load(plane);
            else
                return T(elementAt(plane, 0));
        });
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
