// The square matrices of order 3 to 6, held row by row in registers.
#pragma once

#include "frame/lanes.hpp"
#include "frame/minmax.hpp"
#include "frame/operands.hpp"
#include "frame/shuffles.hpp"
#include "frame/unrolled.hpp"

namespace vorm {

// How the rows of a matrix of order n lie in registers: as many full ones as fit, then one for the
// rest, in which the one or two elements left over repeat: 4 4 4 4 or 4 5 4 5 behind 0 1 2 3. Three
// floats are a register whose last lane is undefined.
template <class T, int n>
struct SmallMatrix {
    static constexpr int width = Lanes<T>::width;
    static constexpr bool lastLaneUndefined = n < width;
    static constexpr int full = lastLaneUndefined ? 1 : n / width;  // registers of a row without its rest
    static constexpr int rest = lastLaneUndefined ? 0 : n % width, parts = full + (rest != 0);

    // The column that lane l of part p holds.
    static constexpr int column(int p, int l)
    {
        return p < full ? min(p * width + l, n - 1) : full * width + l % max(rest, 1);
    }

    // Part p of row r.
    template <int r, int p, class View>
    VORM_INLINE static Lanes<T> load(const View& view, int object)
    {
        if constexpr (View::isAdjacent) {
            const T* const from = advance(view.object(object), std::ptrdiff_t{r} * view.stride1) + p * width;
            if constexpr (p == full && rest == 1)
                return elementAt(from, 0);
            else if constexpr (p == full)
                return loadTwice(from);
            else if constexpr (!lastLaneUndefined || r < n - 1)
                return Lanes<T>::load(from);  // three floats are read as four: this one is the next row's or before it
            else
                return behindFirst(Lanes<T>::load(from - 1));
        } else {
            return lanes<T>([&](int l) VORM_INLINE_LAMBDA { return T(view(object, r, column(p, l))); });
        }
    }

    // Part p of some rows of a transposed matrix, a register of them: from row width * across on.
    template <int p, int across, class Stored>
    VORM_INLINE static void loadBlock(const Transposed<Stored>& view, int object, Lanes<T> (&rows)[width])
    {
        if constexpr (across == full && rest == 1) {
            rows[0] = load<n - 1, p>(view, object);
        } else {
            unrolled<width>([&](auto l)
                                VORM_INLINE_LAMBDA { rows[l] = load<column(p, l), across>(view.stored, object); });
            transpose(rows);
        }
    }

    // Part p of all rows.
    template <int p, class View>
    VORM_INLINE static void loadAll(const View& view, int object, Lanes<T> (&rows)[n])
    {
        if constexpr (isTransposed<View>) {
            unrolled<parts>([&](auto across) VORM_INLINE_LAMBDA {
                Lanes<T> block[width];
                loadBlock<p, across>(view, object, block);
                for (int l = 0; l < width && width * across + l < n; ++l) rows[width * across + l] = block[l];
            });
        } else {
            unrolled<n>([&](auto r) VORM_INLINE_LAMBDA { rows[r] = load<r, p>(view, object); });
        }
    }

    // The rest of the i-th row in a register that holds the rests of several, in the first lanes.
    template <int i>
    VORM_INLINE static Lanes<T> restOf(Lanes<T> rests)
    {
        if constexpr (i == 0)
            return rests;
        else if constexpr (rest == 2)
            return highPairs(rests, rests);
        else
            return splat<i>(rests);
    }

    template <int r, int p, class View>
    VORM_INLINE static void store(const View& view, int object, Lanes<T> part)
    {
        if constexpr (View::isAdjacent) {
            T* const to = advance(view.object(object), std::ptrdiff_t{r} * view.stride1) + p * width;
            if constexpr (p == full) {
                storeFirst<rest>(to, part);
            } else if constexpr (!lastLaneUndefined) {
                part.store(to);
            } else if (r < n - 1 && view.stride1 == n * int{sizeof(T)}) {
                part.store(to);  // the next row overwrites what is too much
            } else {
                storeThree(to, part);
            }
        } else {
            unrolled<p == full ? rest : min(width, n - p * width)>(
                [&](auto l) VORM_INLINE_LAMBDA { view(object, r, p * width + l) = firstLane(splat<l>(part)); });
        }
    }
};

}  // namespace vorm
