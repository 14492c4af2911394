// Values, and vectors where they are wanted, of one matrix or of a register of them, of order 3 and above.
#pragma once

#include "eigen/sym/iteration.hpp"
#include "eigen/sym/vectors.hpp"
#include "vorm/status.h"

namespace vorm::eigen::sym {

// The two lines of w that are left after the reduction, to its rows 0 and 1, mirrored where the mask is set.
template <class Number>
VORM_INLINE void gatherLines(Number* w, int n, MaskOf<Number> isUpward)
{
    const auto gather = [&](std::ptrdiff_t first, int last, Number* to) VORM_INLINE_LAMBDA {
        for (int i = 0, j = last; i <= j; ++i, --j) {
            const Number fromAbove = at(w, first + i * std::ptrdiff_t{n + 1});
            const Number fromBelow = at(w, first + j * std::ptrdiff_t{n + 1});
            at(to, i) = select(isUpward, fromBelow, fromAbove);
            at(to, j) = select(isUpward, fromAbove, fromBelow);
        }
    };
    gather(0, n - 1, w);
    gather(n, n - 2, w + n);
}

template <class Number>
VORM_INLINE void unmirror(Number* d, int n, MaskOf<Number> isUpward)
{
    for (int i = 0, j = n - 1; i < j; ++i, --j) {
        const Number first = at(d, i), last = at(d, j);
        at(d, i) = select(isUpward, last, first);
        at(d, j) = select(isUpward, first, last);
    }
}

// Descending: the first of the largest values changes places with the one it is to stand for.
template <class Number, class Vectors>
VORM_INLINE void sortDescending(Number* d, int n, const Vectors& vectors)
{
    for (int i = 0; i < n - 1; ++i) {
        if constexpr (inLanes<Number>) {
            const Number before = d[i];
            MaskOf<Number> isLarger[bufferedOrder];
            Number largest = before;
            for (int j = i + 1; j < n; ++j) {
                isLarger[j] = d[j] > largest;
                largest = select(isLarger[j], d[j], largest);
            }
            d[i] = largest;
            auto isFound = without(always<Number>(), always<Number>());
            for (int j = n - 1; j > i; --j) {
                const auto isHere = without(isLarger[j], isFound);
                isFound = isFound | isLarger[j];
                d[j] = select(isHere, before, d[j]);
                if (Vectors::areWanted && any(isHere)) vectors.exchange(i, j, isHere);
            }
        } else {
            int best = i;
            for (int j = i + 1; j < n; ++j)
                if (Number(at(d, j)) > Number(at(d, best))) best = j;
            if (best == i) continue;
            const Number before = at(d, i);
            at(d, i) = Number(at(d, best));
            at(d, best) = before;
            vectors.exchange(i, best, true);
        }
    }
}

// w is the matrix and its first row the values afterwards, u room for n numbers. Where an object fails a register of
// them has nothing of use, a single object what is documented: the members for one matrix sort before they test.
template <class Number, class Vectors>
VORM_INLINE VormStatus solve(Number* w, Number* u, int n, Vectors& vectors, bool sortsFirst)
{
    const auto last = [&](int i) VORM_INLINE_LAMBDA { return abs(Number(at(w, i * std::ptrdiff_t{n + 1}))); };
    reduce(w, u, n, vectors);
    const auto isUpward = without(always<Number>(), last(n - 1) > last(0));
    gatherLines(w, n, isUpward);
    vectors.mirror(isUpward);
    const Outcome<Number> outcome = iterate(w, w + n, n, isUpward, vectors);
    const bool isSingular = any(abs(outcome.product) <= Number(tolerance<Element<Number>>));
    const bool failed = any(outcome.failed);
    if (inLanes<Number> && (failed || isSingular)) return StatusSingular;
    unmirror(w, n, isUpward);
    vectors.unmirror();
    if (failed) return StatusNoConvergence;
    if (!isSingular || sortsFirst) sortDescending(w, n, vectors);
    return isSingular ? StatusSingular : StatusOk;
}

}  // namespace vorm::eigen::sym
