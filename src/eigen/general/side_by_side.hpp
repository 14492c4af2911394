// The values, or the Schur forms as well, of as many objects as a number has lanes, whose sweeps run at once. Each lane
// has a block of its own to sweep, so that a step may be none of some lanes, or one of two rows in some and of three in
// others. For values alone what lies outside of a lane's block, which no value comes from any more, may come out
// otherwise than for an object alone.
#pragma once

#include "eigen/general/schur.hpp"
#include "eigen/general/values_of.hpp"
#include "frame/several_masks.hpp"

namespace vorm::eigen {

// Which rows and columns a step turns.
enum class Rows { two, three, mixed };

template <Rows rows, class Number>
struct StepFactors {
    using Mask = decltype(Number() < Number());
    Number v2, v3, t1, t2, t3;
    Mask on, three;  // of mixed steps

    VORM_INLINE void turn(Number& x, Number& y) const
    {
        const Number sum = x + v2 * y;
        x = x - sum * t1;
        y = y - sum * t2;
    }
    VORM_INLINE void turn(Number& x, Number& y, Number& z) const
    {
        if constexpr (rows == Rows::mixed) {
            const Number pair = x + v2 * y;
            const Number sum = select(three, pair + v3 * z, pair);
            x = x - where(on, sum * t1);
            y = y - where(on, sum * t2);
            z = z - where(three, sum * t3);
        } else {
            const Number sum = x + v2 * y + v3 * z;
            x = x - sum * t1;
            y = y - sum * t2;
            z = z - sum * t3;
        }
    }
};

// Where the Schur form and the transformation of lane l go, by columns: from element l order order on.
template <class T>
struct SchurForms {
    T *form, *transformation;
};

template <bool keeps, class Number, class N>
class SideBySide {
    using T = Element<Number>;
    using Mask = decltype(Number() < Number());
    static constexpr int lanes = objectsIn<Number>;
    struct alignas(64) PerLane {
        T lane[lanes];
        VORM_INLINE Number load() const
        {
            using One = RegisterIn<Number>;
            Number a;
            unrolled<registersIn<Number>>(
                [&](auto k) VORM_INLINE_LAMBDA { registerOf(a, k) = One::load(lane + k * One::width); });
            return a;
        }
    };

public:
    // Brings the matrices to Hessenberg form, and iterates. Value k of a lane is re[k] + i im[k].
    VORM_INLINE SideBySide(Number* matrix, N n, Number* re, Number* im, SchurForms<T> forms = {})
        : matrix_(matrix), n_(n), re_(re), im_(im), forms_(forms)
    {
        const int order = n;
        Number work[2 * mostSideBySide];
        hessenberg(matrix, order, work, work + mostSideBySide);
        if constexpr (keeps) formTransformation(matrix, work, order, transformation_);
        clearBelowSubdiagonal(matrix, order);
        for (State& lane : lane_) lane = {order - 1, 0, 0, 30 * order};
        for (int k = 0; k < order; ++k) pairs_[k] = re[k] = im[k] = Number(T(0));
        while (settle()) sweep();
        if constexpr (!keeps)
            for (int k = 0; k + 1 < order; ++k) standardisePairs(k);
    }
    // Whether all values have left before the sweeps were spent.
    VORM_INLINE bool isComplete() const { return isComplete_; }

private:
    struct State {
        int last, first, sweeps, budget;
    };

    // The elements of a matrix in one lane.
    struct LaneColumns {
        T* p;
        int n;
        VORM_INLINE T& operator()(int i, int j) const { return p[(j * n + i) * lanes]; }
    };

    VORM_INLINE Number& m(int i, int j) { return matrix_[j * int{n_} + i]; }
    VORM_INLINE Number& q(int i, int j) { return transformation_[j * int{n_} + i]; }
    VORM_INLINE T& inLane(Number& a, int l) { return reinterpret_cast<T*>(&a)[l]; }

    // A lane is done. Its place is filled with zeros, which stay what they are: of what is left numbers might become so
    // small that they take long.
    VORM_INLINE void retire(int l)
    {
        lane_[l].last = -1;
        if constexpr (keeps) {
            const int square = n_ * n_;
            T *const form = forms_.form + l * square, *const transformation = forms_.transformation + l * square;
            for (int e = 0; e < square; ++e) {
                form[e] = inLane(matrix_[e], l);
                transformation[e] = inLane(transformation_[e], l);
            }
            // Lanes with NaNs may have turned zeros outside of their blocks.
            for (int k = 0; k + 1 < n_; ++k)
                if (inLane(pairs_[k], l) == 0) form[k * n_ + k + 1] = 0;
        }
        for (int e = 0; e < n_ * n_; ++e) inLane(matrix_[e], l) = 0;
    }

    // Lets leave what has been split off. Returns whether a lane has to go on.
    VORM_INLINE bool settle()
    {
        unsigned negligible[mostSideBySide];
        for (int k = 1; k < n_; ++k) negligible[k] = laneBits(abs(m(k, k - 1)) <= Number(ulp<T>));
        low_ = n_, high_ = -1, lowestLast_ = n_, isExceptional_ = false;
        for (int l = 0; l < lanes; ++l) {
            State& s = lane_[l];
            while (s.last >= 0) {
                if (s.sweeps < s.budget) {
                    int k = s.last;
                    while (k > s.first && !(negligible[k] >> l & 1)) --k;
                    s.first = k;
                    if (k > 0) inLane(m(k, k - 1), l) = 0;
                    if (k < s.last - 1) break;
                } else if (s.first < s.last - 1) {
                    isComplete_ = false;
                    retire(l);
                    break;
                }
                leave(s, l);
                if (s.last < 0) retire(l);
            }
            last_.lane[l] = T(s.last), first_.lane[l] = T(s.first);
            if (s.last < 0) continue;
            low_ = min(low_, s.first), high_ = max(high_, s.last), lowestLast_ = min(lowestLast_, s.last);
            const bool isExceptional = s.sweeps == 10 || s.sweeps == 20;
            exceptional_.lane[l] = isExceptional;
            isExceptional_ = isExceptional_ || isExceptional;
            ++s.sweeps;
        }
        return high_ >= 0;
    }
    VORM_INLINE void leave(State& s, int l)
    {
        const int k = s.last;
        if (s.first == k) {
            inLane(re_[k], l) = inLane(m(k, k), l);
        } else {
            inLane(pairs_[k - 1], l) = 1;
            Block<T> block;
            if constexpr (keeps) {
                const LaneColumns own{&inLane(matrix_[0], l), n_}, turned{&inLane(transformation_[0], l), n_};
                block = leavePair<true>(own, turned, n_, k);
                const T imaginary = imaginaryOf(block);
                block.b = imaginary, block.c = conjugateOf(block, imaginary);
            } else {
                block = {inLane(m(k - 1, k - 1), l), inLane(m(k - 1, k), l), inLane(m(k, k - 1), l),
                         inLane(m(k, k), l)};
            }
            inLane(re_[k - 1], l) = block.a;
            inLane(im_[k - 1], l) = block.b;
            inLane(im_[k], l) = block.c;
            inLane(re_[k], l) = block.d;
        }
        s = {s.first - 1, 0, 0, s.budget - s.sweeps};
    }
    // Pairs at k and k + 1 have left as they were.
    VORM_INLINE void standardisePairs(int k)
    {
        const Mask isPair = pairs_[k] > Number(T(0));
        if (!any(isPair)) return;
        Block<Number> block{re_[k], im_[k], im_[k + 1], re_[k + 1]};
        standardise<false>(block);
        const Number imaginary = imaginaryOf(block), conjugate = conjugateOf(block, imaginary);
        re_[k] = select(isPair, block.a, re_[k]);
        im_[k] = select(isPair, imaginary, im_[k]);
        re_[k + 1] = select(isPair, block.d, re_[k + 1]);
        im_[k + 1] = select(isPair, conjugate, im_[k + 1]);
    }

    // element(k) of the lanes whose last row is k.
    template <class Of>
    VORM_INLINE Number atLast(const Number& last, const Of& element)
    {
        Number a = element(high_);
        for (int k = lowestLast_; k < high_; ++k) a = select(last == Number(T(k)), element(k), a);
        return a;
    }
    VORM_INLINE Shifts<Number> shifts(const Number& last)
    {
        const Number h44 = atLast(last, [&](int k) VORM_INLINE_LAMBDA { return m(k, k); });
        const Number h33 = atLast(last, [&](int k) VORM_INLINE_LAMBDA { return m(k - 1, k - 1); });
        const Number h43 = atLast(last, [&](int k) VORM_INLINE_LAMBDA { return m(k, k - 1); });
        const Number h34 = atLast(last, [&](int k) VORM_INLINE_LAMBDA { return m(k - 1, k); });
        Shifts<Number> usual = shiftsOf(h44, h33, h43 * h34);
        if (isExceptional_) {
            const Number h32 = atLast(last, [&](int k) VORM_INLINE_LAMBDA { return m(k - 1, k - 2); });
            const Shifts<Number> other = exceptionalShifts(h44, h43, h32);
            const Mask here = exceptional_.load() > Number(T(0));
            usual = {select(here, other.h44, usual.h44), select(here, other.h33, usual.h33),
                     select(here, other.h43h34, usual.h43h34)};
        }
        return usual;
    }

    VORM_INLINE void sweep()
    {
        const Number zero(T(0));
        const Number last = last_.load(), first = first_.load();
        const Mask idle = last < zero;
        const Shifts<Number> shift = shifts(last);

        Start<Number> x{zero, zero, zero};
        Number start = zero;
        int highestStart = -1, k = high_ - 2;
        for (Mask open = last >= zero;; --k) {
            const Start<Number> here =
                startAt(shift, m(k, k), m(k + 1, k), m(k, k + 1), m(k + 1, k + 1), m(k + 2, k + 1));
            Mask stops = first == Number(T(k));
            if (k > 0) stops = stops | startsHere(here, m(k - 1, k - 1), m(k, k), m(k + 1, k + 1), m(k, k - 1));
            stops = stops & open & (last >= Number(T(k + 2)));
            x = {select(stops, here.q1, x.q1), select(stops, here.q2, x.q2), select(stops, here.q3, x.q3)};
            start = select(stops, Number(T(k)), start);
            if (highestStart < 0 && any(stops)) highestStart = k;
            open = without(open, stops);
            if (!any(open)) break;
        }

        for (const int lowestStart = k; k < high_; ++k) {
            const Number here{T(k)};
            const Mask on = (start <= here) & (here < last), three = on & (Number(T(k + 1)) < last);
            const bool someThree = k + 1 < high_;
            if (k > highestStart) {
                x = {m(k, k - 1), m(k + 1, k - 1), someThree ? m(k + 2, k - 1) : zero};
            } else if (k > lowestStart) {
                const Mask later = start < here;
                x = {select(later, m(k, k - 1), x.q1), select(later, m(k + 1, k - 1), x.q2),
                     someThree ? select(later, m(k + 2, k - 1), x.q3) : x.q3};
            }
            const Mask allOn = on | idle, allThree = three | idle;
            if (all(allThree))
                step<Rows::three>(k, highestStart, x, start, first, on, three);
            else if (!someThree && all(allOn))
                step<Rows::two>(k, highestStart, x, start, first, on, three);
            else
                step<Rows::mixed>(k, highestStart, x, start, first, on, three);
        }
    }

    template <Rows rows>
    VORM_INLINE void step(int k, int highestStart, const Start<Number>& x, const Number& start, const Number& first,
                          const Mask& on, const Mask& three)
    {
        const Number zero(T(0));
        const bool hasThird = rows == Rows::three || (rows == Rows::mixed && k + 2 < n_);
        Number sum = x.q2 * x.q2;
        if (rows == Rows::three) sum = sum + x.q3 * x.q3;
        if (rows == Rows::mixed) sum = select(three, sum + x.q3 * x.q3, sum);
        const Reflection<Number> reflection = reflectionOf(x.q1, sqrt(sum));
        const Number v2 = x.q2 * reflection.scale, v3 = x.q3 * reflection.scale;
        if (rows != Rows::mixed && k > highestStart) {
            m(k, k - 1) = reflection.beta;
            m(k + 1, k - 1) = zero;
            if (rows == Rows::three) m(k + 2, k - 1) = zero;
        } else if (k > 0) {
            const Number here{T(k)};
            const Mask later = on & (start < here);
            const Number old = m(k, k - 1);
            const Number kept = select((start == here) & (first < start) & on, -old, old);
            m(k, k - 1) = select(later, reflection.beta, kept);
            m(k + 1, k - 1) = select(later, zero, m(k + 1, k - 1));
            if (hasThird) m(k + 2, k - 1) = select(later & three, zero, m(k + 2, k - 1));
        }
        const StepFactors<rows, Number> factors{v2, v3,   reflection.tau, reflection.tau * v2, reflection.tau * v3,
                                                on, three};
        const int columnsEnd = keeps ? int{n_} : high_ + 1, rowsEnd = min(k + 3, high_) + 1;
        if (hasThird) {
            for (int c = k; c < columnsEnd; ++c) factors.turn(m(k, c), m(k + 1, c), m(k + 2, c));
            for (int r = keeps ? 0 : low_; r < rowsEnd; ++r) factors.turn(m(r, k), m(r, k + 1), m(r, k + 2));
            if constexpr (keeps)
                for (int r = 0; r < n_; ++r) factors.turn(q(r, k), q(r, k + 1), q(r, k + 2));
        } else {
            for (int c = k; c < columnsEnd; ++c) turnTwo(factors, m(k, c), m(k + 1, c));
            for (int r = keeps ? 0 : low_; r < rowsEnd; ++r) turnTwo(factors, m(r, k), m(r, k + 1));
            if constexpr (keeps)
                for (int r = 0; r < n_; ++r) turnTwo(factors, q(r, k), q(r, k + 1));
        }
    }
    // At the end of the matrix no lane has a third row.
    template <Rows rows>
    VORM_INLINE static void turnTwo(const StepFactors<rows, Number>& f, Number& x, Number& y)
    {
        if constexpr (rows == Rows::mixed) {
            const Number sum = x + f.v2 * y;
            x = x - where(f.on, sum * f.t1);
            y = y - where(f.on, sum * f.t2);
        } else {
            f.turn(x, y);
        }
    }

    Number* const matrix_;
    const N n_;
    Number *const re_, *const im_;
    const SchurForms<T> forms_;
    Number transformation_[keeps ? mostSideBySide * mostSideBySide : 1];
    Number pairs_[mostSideBySide];
    State lane_[lanes];
    PerLane last_, first_, exceptional_;
    int low_, high_, lowestLast_;  // of the lanes' blocks
    bool isExceptional_, isComplete_ = true;
};

}  // namespace vorm::eigen
