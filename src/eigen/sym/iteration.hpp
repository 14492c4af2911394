// The implicit tridiagonal iteration with shifts, over a number type. It runs from either end of the diagonal: the two
// directions are mirror images of each other but for three small steps, so that both run as one, downward, over a
// diagonal that has been mirrored for the upward direction.
#pragma once

#include "eigen/sym/reduction.hpp"
#include "frame/object_rows.hpp"

namespace vorm::eigen::sym {

constexpr int sweepLimit = 30;

// Off-diagonal elements from l on that belong to the block which begins there: of an object up to the first that is
// small, so that of several a mask says who has got there.
template <class Number>
struct OpenBlock {
    int m;
    template <class Small, class Stops>
    VORM_INLINE void find(bool isOpen, int l, int n, const Small& small, const Stops& stops)
    {
        m = l;
        if (!isOpen) return;
        for (++m; m < n - 1; ++m)
            if (small(m)) {
                stops(m, true);
                break;
            }
    }
    VORM_INLINE bool has(int i) const { return i < m; }
};
template <class Number>
requires(inLanes<Number>) struct OpenBlock<Number> {
    MaskOf<Number> open[bufferedOrder];
    template <class Small, class Stops>
    VORM_INLINE void find(MaskOf<Number> isOpen, int l, int n, const Small& small, const Stops& stops)
    {
        open[l] = isOpen;
        for (int i = l + 1; i < n - 1; ++i) {
            const auto isSmall = small(i);
            stops(i, open[i - 1] & isSmall);
            open[i] = without(open[i - 1], isSmall);
        }
    }
    VORM_INLINE MaskOf<Number> has(int i) const { return open[i]; }
};

template <class Number>
struct Outcome {
    MaskOf<Number> failed;  // to converge
    Number product;         // of the diagonal elements, as they were found
};

// d is the diagonal and e(i) stands between d(i) and d(i + 1), mirrored where isUpward is set.
// vectors.rotate(i, c, s, mask) turns columns i and i + 1.
template <class Number, class Vectors>
VORM_INLINE Outcome<Number> iterate(Number* d, Number* e, int n, MaskOf<Number> isUpward, Vectors& vectors)
{
    using T = Element<Number>;
    using Mask = MaskOf<Number>;
    const Number eps(tolerance<T>), twiceEps(2 * tolerance<T>);
    const auto D = [&](int i) VORM_INLINE_LAMBDA -> decltype(auto) { return at(d, i); };
    const auto E = [&](int i) VORM_INLINE_LAMBDA -> decltype(auto) { return at(e, i); };
    const auto small = [&](int i) VORM_INLINE_LAMBDA { return abs(Number(E(i))) <= twiceEps; };
    Number product(T(1));
    for (int l = 0; l < n - 1; ++l) {
        Mask isOpen = always<Number>();
        for (int sweeps = 0;; ++sweeps) {
            const Mask isSmall = small(l);
            product = select(isOpen & isSmall, product * Number(D(l)), product);
            isOpen = without(isOpen, isSmall);
            if (!any(isOpen)) break;
            // Upward, a block that ends early takes the element behind it into the product each time.
            OpenBlock<Number> block;
            block.find(isOpen, l, n, small, [&](int m, Mask ends) VORM_INLINE_LAMBDA {
                if (any(ends & isUpward)) product = select(ends & isUpward, product * Number(D(m)), product);
            });
            if (sweeps == sweepLimit) return {isOpen, product};

            Number g = (Number(D(l + 1)) - Number(D(l))) / (Number(T(2)) * Number(E(l)));
            const Number root = sqrt(g * g + Number(T(1)));
            g = select(g > eps, g + root, g - root);
            const Number step = Number(E(l)) / g;
            Number s(T(1)), c(T(1)), p(T(0)), rho(T(0));
            Mask running = without(isOpen, isOpen);
            for (int i = n - 2; i >= l; --i) {
                const Mask begins = i == n - 2 ? block.has(i) : without(block.has(i), block.has(i + 1));
                if (any(begins)) {
                    g = select(begins, (Number(D(i + 1)) - Number(D(l))) + step, g);
                    s = select(begins, Number(T(1)), s);
                    c = select(begins, Number(T(1)), c);
                    p = select(begins, Number(T(0)), p);
                }
                if (!any(running | begins)) continue;
                const Number f = s * Number(E(i)), b = c * Number(E(i)), r = sqrt(f * f + g * g);
                if (i < n - 2) E(i + 1) = select(running, r, Number(E(i + 1)));
                running = running | begins;
                const Mask stops = running & (r <= eps);
                if (any(stops)) {
                    // The element behind the block is cleared, upward the last of the block.
                    D(i + 1) = select(stops, Number(D(i + 1)) - p, Number(D(i + 1)));
                    for (int j = l; j < n - 1; ++j) {
                        const Mask isLast =
                            stops & (j == n - 2 ? block.has(j) : without(block.has(j), block.has(j + 1)));
                        E(j) = select(isLast & isUpward, Number(T(0)), Number(E(j)));
                        if (j < n - 2) E(j + 1) = select(without(isLast, isUpward), Number(T(0)), Number(E(j + 1)));
                    }
                    running = without(running, stops);
                }
                s = f / r;
                c = g / r;
                g = Number(D(i + 1)) - p;
                rho = (Number(D(i)) - g) * s + (Number(T(2)) * c) * b;
                p = rho * s;
                D(i + 1) = select(running, g + p, Number(D(i + 1)));
                g = c * rho - b;
                if (any(running)) vectors.rotate(i, c, s, running);
            }
            Mask ends = abs(rho) > eps;
            if (l == 0) ends = ends | without(always<Number>(), isUpward);
            ends = ends & running;
            D(l) = select(ends, Number(D(l)) - p, Number(D(l)));
            E(l) = select(ends, g, Number(E(l)));
        }
    }
    return {without(isUpward, isUpward), product * Number(D(n - 1))};
}

}  // namespace vorm::eigen::sym
