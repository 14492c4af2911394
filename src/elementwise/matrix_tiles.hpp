// Sums of matrices of which one is read or written transposed, tile by tile: memory is read and written along what lies
// side by side in it.
#pragma once

#include "elementwise/runs.hpp"
#include "frame/elements.hpp"
#include "frame/pin.hpp"
#include "frame/tiles.hpp"

namespace vorm::elementwise {

// The operand whose columns lie side by side where those of the others are rows.
enum class Turned { none, first, second, result };

// One object of a source: its rows as sources of runs. What is constant is the same in every row.
template <class T>
struct SameInAllRows {
    Everywhere<T> value;
    VORM_INLINE Everywhere<T> operator()(int) const { return value; }
};
template <class Elements>
VORM_INLINE auto rowsOf(const Elements& elements, int n)
{
    return RowsOfObject<std::remove_pointer_t<decltype(elements.at(0))>>{elements.at(n), elements.row};
}
template <class T>
VORM_INLINE SameInAllRows<T> rowsOf(const Constant<T>& constant, int)
{
    return {{RunRegister<T>(constant.val)}};
}

// Two elements of each of two such rows.
VORM_INLINE Lanes<float> pairsOf(Everywhere<float> a, Everywhere<float>, int i) { return a.lanes(i); }

// dst = a op b for one tile of a kind, whose place is that in the operands that are not turned.
template <class InRows, class Odd, Turned turned, class Op, class A, class B, class T>
VORM_INLINE void oneTile(const Op& op, const A& a, const B& b, const RowsOfObject<T>& dst, int r, int c)
{
    const auto straight = [&](const auto& source) VORM_INLINE_LAMBDA { return InRows::load(source, r, c); };
    const auto odd = [&](const auto& source) VORM_INLINE_LAMBDA {
        Odd tile = Odd::load(source, c, r);
        // Or g++ loads halves again from memory instead of shuffling.
        if constexpr (std::is_same_v<Odd, Tile<double, 2, 2>>)
            for (Lanes<T>& part : tile.v) pin(part);
        return tile.turned();
    };
    InRows x, y;
    if constexpr (turned == Turned::first)
        x = odd(a);
    else
        x = straight(a);
    if constexpr (turned == Turned::second)
        y = odd(b);
    else
        y = straight(b);
    for (unsigned k = 0; k < sizeof x.v / sizeof x.v[0]; ++k) x.v[k] = op.apply(x.v[k], y.v[k]);
    if constexpr (turned == Turned::result)
        x.turned().store(dst, c, r);
    else
        x.store(dst, r, c);
}

// One row or one column of a tile: number by number.
template <int rows, int columns, Turned turned, class Op, class A, class B, class T>
VORM_INLINE void scalarTile(const Op& op, const A& a, const B& b, const RowsOfObject<T>& dst, int r, int c)
{
    const auto number = [](const auto& source, int i, int j)
                            VORM_INLINE_LAMBDA { return firstLane(source(i).template lanes<1>(j)); };
    for (int i = r; i < r + rows; ++i)
        for (int j = c; j < c + columns; ++j) {
            const T x = turned == Turned::first ? number(a, j, i) : number(a, i, j);
            const T y = turned == Turned::second ? number(b, j, i) : number(b, i, j);
            const T z = op.apply(x, y);
            if constexpr (turned == Turned::result)
                elementAt(dst.from(j), i * std::ptrdiff_t{sizeof(T)}) = z;
            else
                elementAt(dst.from(i), j * std::ptrdiff_t{sizeof(T)}) = z;
        }
}

// One object of any size, constants or numbers, that of the operands that are not turned.
template <Turned turned, class Op, class A, class B, class T, class Height, class Width>
VORM_INLINE void tiles(const Op& op, const A& a, const B& b, const RowsOfObject<T>& dst, Height height, Width width)
{
    constexpr int most = Lanes<T>::width;
    const auto tile = [&]<int rows, int columns>(int r, int c) VORM_INLINE_LAMBDA {
        if constexpr (rows == 1 || columns == 1)
            scalarTile<rows, columns, turned>(op, a, b, dst, r, c);
        else
            oneTile<Tile<T, rows, columns>, Tile<T, columns, rows>, turned>(op, a, b, dst, r, c);
    };
    // Along the rows that are stored, which here are the columns.
    if constexpr (turned == Turned::result)
        inBands<most>(width, height, [&]<int columns, int rows>(int c, int r) VORM_INLINE_LAMBDA {
            tile.template operator()<rows, columns>(r, c);
        });
    else
        inBands<most>(height, width, tile);
}

}  // namespace vorm::elementwise
