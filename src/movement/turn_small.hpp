// Small square matrices turned one after the other: orders 2 to 6, where each row of the source and each row of the
// result lies side by side.
#pragma once

#include "frame/pin.hpp"
#include "frame/tiles.hpp"
#include "movement/lines.hpp"

namespace vorm::movement {

// One object, in the order in which its rows are stored: whole ones as pairs of doubles, otherwise tile by tile;
// numbers one by one where a tile would be a row or a column, and all nine of order 3.
template <int order, class T>
VORM_INLINE void turnSmall(const RowsOfObject<const T>& src, const RowsOfObject<T>& dst)
{
    const auto number = [&](int r, int c) VORM_INLINE_LAMBDA { entry(dst.from(c), r) = T{entry(src.from(r), c)}; };
    if constexpr (order == 3) {
        unrolled<9>([&](auto i) VORM_INLINE_LAMBDA { number(i % 3, i / 3); });
    } else if constexpr (narrow<T> == 2) {
        constexpr int pairs = order / 2;
        unrolled<pairs>([&](auto k) VORM_INLINE_LAMBDA {
            constexpr int c = 2 * decltype(k)::value;
            Lanes<T> rows[2][pairs];
            unrolled<pairs>([&](auto i) VORM_INLINE_LAMBDA {
                Lanes<T> pair[] = {Lanes<T>::load(src.from(2 * i) + c), Lanes<T>::load(src.from(2 * i + 1) + c)};
                for (Lanes<T>& row : pair) pin(row);  // or g++ loads halves again from memory instead of shuffling
                transpose(pair);
                rows[0][i] = pair[0], rows[1][i] = pair[1];
            });
            unrolled<2>([&](auto row) VORM_INLINE_LAMBDA {
                unrolled<pairs>([&](auto i) VORM_INLINE_LAMBDA { rows[row][i].store(dst.from(c + row) + 2 * i); });
                if constexpr (order % 2 == 1) number(order - 1, c + row);
            });
        });
        if constexpr (order % 2 == 1) unrolled<order>([&](auto r) VORM_INLINE_LAMBDA { number(r, order - 1); });
    } else if constexpr (order == 5) {
        const auto tile = Tile<T, 4, 4>::load(src, 0, 0).turned();
        unrolled<4>([&](auto c) VORM_INLINE_LAMBDA {
            tile.v[c].store(dst.from(c));
            number(4, c);
        });
        const auto last = [&](int r) VORM_INLINE_LAMBDA { return loadFirst<1>(src.from(r) + 4); };
        shuffle<0, 1, 0, 1>(interleaveLow(last(0), last(1)), interleaveLow(last(2), last(3))).store(dst.from(4));
        number(4, 4);
    } else {
        inBands<narrow<T>>(order, order, [&]<int columns, int rows>(int c, int r) VORM_INLINE_LAMBDA {
            if constexpr (rows == 1 || columns == 1)
                unrolled<rows * columns>([&](auto i) VORM_INLINE_LAMBDA { number(r + i % rows, c + i / rows); });
            else
                Tile<T, rows, columns>::load(src, r, c).turned().store(dst, c, r);
        });
    }
}

// The same in doubles of an odd order to where they lie without gaps: pairs of rows as whole registers.
template <int order>
VORM_INLINE void turnSmallPacked(const RowsOfObject<const double>& src, double* dst)
{
    const auto number = [&](int i) VORM_INLINE_LAMBDA { return loadFirst<1>(src.from(i % order) + i / order); };
    unrolled<order * order / 2>(
        [&](auto i) VORM_INLINE_LAMBDA { shuffle<0, 0>(number(2 * i), number(2 * i + 1)).store(dst + 2 * i); });
    entry(dst, order * order - 1) = double{entry(src.from(order - 1), order - 1)};
}

template <int order, class T, class S, class D>
[[gnu::noinline]] void turnSmallObjects(const S src, const D dst, int first, int count)
{
    if constexpr (order == 5 && sizeof(T) == sizeof(double))
        if (dst.column == std::ptrdiff_t{order * sizeof(T)}) {
            for (int n = first; n < count; ++n) turnSmallPacked<order>({src.at(n), src.row}, dst.at(n));
            return;
        }
    for (int n = first; n < count; ++n) turnSmall<order, T>({src.at(n), src.row}, {dst.at(n), dst.column});
}

// Arrays of order 3 without a gap fill registers some at a time.
template <class T>
[[gnu::noinline]] int turnPackedThrees(const T* src, T* dst, int count)
{
    using Threes = PackedThrees<T>;
    constexpr std::ptrdiff_t length = 9 * Threes::objects;
    for (int n = 0; n < count / Threes::objects; ++n)
        Threes::load(RowsOfObject<const T>{src + n * length, 0}, 0, 0).turned().store({dst + n * length, 0}, 0, 0);
    return count / Threes::objects * Threes::objects;
}

// Does what it can do, and says whether it could.
template <class T, class S, class D>
VORM_INLINE bool turnSmallSquares(const S& src, const D& dst, std::ptrdiff_t order, int count)
{
    int first = 0;
    if constexpr (!isList<S> && !isList<D>) {
        constexpr std::ptrdiff_t row = 3 * sizeof(T), object = 3 * row;
        if (order == 3 && src.row == row && dst.column == row && src.object == object && dst.object == object)
            first = turnPackedThrees(src.p, dst.p, count);
    }
    switch (order) {
    case 2: return turnSmallObjects<2, T>(src, dst, first, count), true;
    case 3: return turnSmallObjects<3, T>(src, dst, first, count), true;
    case 4: return turnSmallObjects<4, T>(src, dst, first, count), true;
    case 5: return turnSmallObjects<5, T>(src, dst, first, count), true;
    case 6: return turnSmallObjects<6, T>(src, dst, first, count), true;
    default: return false;
    }
}

}  // namespace vorm::movement
