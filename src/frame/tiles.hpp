// Tiles of matrices: a few rows and columns in registers, which are turned there, so that memory is read and written
// along what lies side by side in it. A source is asked for its rows, source(r), and a row for its lanes from a column
// on, as Along is.
#pragma once

#include "frame/memory.hpp"
#include "frame/shuffles.hpp"
#include "frame/unrolled.hpp"

namespace vorm {

// Elements side by side: a register of them from the i-th on, or the first few lanes of one.
template <class T>
struct Along {
    const T* p;
    template <int Count = Lanes<T>::width>
    VORM_INLINE Lanes<T> lanes(std::ptrdiff_t i) const
    {
        return loadFirst<Count>(p + i);
    }
    template <class L>
    VORM_INLINE L lanes(std::ptrdiff_t i) const
    {
        return L::load(p + i);
    }
};

// One object, row by row.
template <class T>
struct RowsOfObject {
    T* p;
    std::ptrdiff_t row;
    VORM_INLINE T* from(int r) const { return advance(p, r * row); }
    VORM_INLINE Along<std::remove_const_t<T>> operator()(int r) const { return {from(r)}; }
};

// Two elements of each of two rows.
VORM_INLINE Lanes<float> pairsOf(Along<float> a, Along<float> b, int i) { return loadPairs(a.p + i, b.p + i); }

// rows x columns elements, row by row: a register is one row, or half rows of four, or pairs of two rows.
template <class T, int rows, int columns>
struct Tile {
    static constexpr int width = Lanes<T>::width, registers = rows * columns / width;
    Lanes<T> v[registers];

    template <class Source>
    VORM_INLINE static Tile load(const Source& source, int r, int c)
    {
        Tile tile;
        unrolled<registers>([&](auto k) VORM_INLINE_LAMBDA {
            if constexpr (columns == width)
                tile.v[k] = source(r + k).template lanes<Lanes<T>>(c);
            else
                tile.v[k] = pairsOf(source(r + 2 * k), source(r + 2 * k + 1), c);
        });
        return tile;
    }
    VORM_INLINE void store(const RowsOfObject<T>& to, int r, int c) const
    {
        unrolled<registers>([&](auto k) VORM_INLINE_LAMBDA {
            if constexpr (columns == width)
                v[k].store(to.from(r + k) + c);
            else
                storePairs(to.from(r + 2 * k) + c, to.from(r + 2 * k + 1) + c, v[k]);
        });
    }
    VORM_INLINE Tile<T, columns, rows> turned() const
    {
        Tile<T, columns, rows> t;
        if constexpr (rows == columns && columns == width) {
            t = *this;
            transpose(t.v);
        } else if constexpr (rows == columns) {
            t.v[0] = permute<0, 2, 1, 3>(v[0]);  // a0 b0 a1 b1
        } else if constexpr (columns == width) {
            t.v[0] = interleaveLow(v[0], v[1]);   // a0 b0 a1 b1
            t.v[1] = interleaveHigh(v[0], v[1]);  // a2 b2 a3 b3
        } else {
            t.v[0] = shuffle<0, 2, 0, 2>(v[0], v[1]);  // a0 b0 c0 d0
            t.v[1] = shuffle<1, 3, 1, 3>(v[0], v[1]);  // a1 b1 c1 d1
        }
        return t;
    }
};

// Three rows of three floats; what is behind the third lane is undefined. The last row is read from an element before
// it, so that nothing behind the matrix is.
template <>
struct Tile<float, 3, 3> {
    Lanes<float> v[3];

    template <class Source>
    VORM_INLINE static Tile load(const Source& source, int, int)
    {
        return {source(0).template lanes<Lanes<float>>(0), source(1).template lanes<Lanes<float>>(0),
                behindFirst(source(2).template lanes<Lanes<float>>(-1))};
    }
    VORM_INLINE void store(const RowsOfObject<float>& to, int, int) const
    {
        for (int r = 0; r < 3; ++r) storeThree(to.from(r), v[r]);
    }
    VORM_INLINE Tile turned() const
    {
        const auto low = interleaveLow(v[0], v[1]);    // a0 b0 a1 b1
        const auto high = interleaveHigh(v[0], v[1]);  // a2 b2
        return {shuffle<0, 1, 0, 0>(low, v[2]), shuffle<2, 3, 1, 1>(low, v[2]), shuffle<0, 1, 2, 2>(high, v[2])};
    }
};

// The same without a gap between the rows: nine elements of one vector.
template <class T>
struct PackedThree {
    static constexpr int width = Lanes<T>::width, registers = 8 / width;
    Lanes<T> v[registers + 1];

    template <class Source>
    VORM_INLINE static PackedThree load(const Source& source, int, int)
    {
        PackedThree tile;
        for (int k = 0; k < registers; ++k) tile.v[k] = source(0).template lanes<Lanes<T>>(k * width);
        tile.v[registers] = source(0).template lanes<1>(8);
        return tile;
    }
    VORM_INLINE void store(const RowsOfObject<T>& to, int, int) const
    {
        for (int k = 0; k < registers; ++k) v[k].store(to.p + k * width);
        storeFirst<1>(to.p + 8, v[registers]);
    }
    VORM_INLINE PackedThree turned() const
    {
        if constexpr (width == 4) {
            const auto x = shuffle<2, 2, 1, 1>(v[1], v[0]);  // a6 a6 a1 a1
            const auto y = shuffle<2, 2, 1, 1>(v[0], v[1]);  // a2 a2 a5 a5
            return {shuffle<0, 3, 0, 2>(v[0], x), shuffle<0, 3, 0, 2>(v[1], y), v[2]};
        } else {
            return {shuffle<0, 1>(v[0], v[1]), shuffle<0, 1>(v[3], v[0]), shuffle<0, 1>(v[2], v[3]),
                    shuffle<0, 1>(v[1], v[2]), v[4]};
        }
    }
};

// As many of them without a gap as fill whole registers: four of floats or two of doubles, in nine registers.
template <class T>
struct PackedThrees {
    static constexpr int width = Lanes<T>::width, registers = 9, objects = width;
    Lanes<T> v[registers];

    template <class Source>
    VORM_INLINE static PackedThrees load(const Source& source, int, int)
    {
        PackedThrees tile;
        for (int k = 0; k < registers; ++k) tile.v[k] = source(0).template lanes<Lanes<T>>(k * width);
        return tile;
    }
    VORM_INLINE void store(const RowsOfObject<T>& to, int, int) const
    {
        for (int k = 0; k < registers; ++k) v[k].store(to.p + k * width);
    }
    // Element k of the matrices a, b, c, d is element 0 3 6 1 4 7 2 5 8 of one read turned.
    VORM_INLINE PackedThrees turned() const
    {
        if constexpr (width == 4) {
            const auto pair = [&](auto i, int from, auto j, int other) VORM_INLINE_LAMBDA {
                return shuffle<decltype(i)::value, decltype(i)::value, decltype(j)::value, decltype(j)::value>(
                    v[from], v[other]);
            };
            const auto both = [](Lanes<T> x, Lanes<T> y) VORM_INLINE_LAMBDA { return shuffle<0, 2, 0, 2>(x, y); };
            constexpr auto at0 = constant<0>;
            constexpr auto at1 = constant<1>;
            constexpr auto at2 = constant<2>;
            constexpr auto at3 = constant<3>;
            return {shuffle<0, 3, 0, 2>(v[0], pair(at2, 1, at1, 0)),   // a0 a3 a6 a1
                    shuffle<0, 3, 0, 2>(v[1], pair(at2, 0, at1, 1)),   // a4 a7 a2 a5
                    shuffle<0, 1, 0, 3>(v[2], v[3]),                   // a8 b0 b3 b6
                    both(pair(at2, 2, at1, 3), pair(at0, 4, at3, 2)),  // b1 b4 b7 b2
                    both(pair(at2, 3, at1, 4), pair(at2, 4, at1, 5)),  // b5 b8 c0 c3
                    both(pair(at0, 6, at3, 4), pair(at2, 5, at1, 6)),  // c6 c1 c4 c7
                    shuffle<0, 3, 2, 3>(v[5], v[6]),                   // c2 c5 c8 d0
                    shuffle<0, 2, 0, 3>(pair(at2, 7, at1, 8), v[7]),   // d3 d6 d1 d4
                    shuffle<0, 2, 0, 3>(pair(at2, 8, at1, 7), v[8])};  // d7 d2 d5 d8
        } else {
            return {shuffle<0, 1>(v[0], v[1]),
                    shuffle<0, 1>(v[3], v[0]),
                    shuffle<0, 1>(v[2], v[3]),
                    shuffle<0, 1>(v[1], v[2]),
                    v[4],
                    shuffle<0, 1>(v[6], v[7]),
                    shuffle<0, 1>(v[5], v[6]),
                    shuffle<0, 1>(v[8], v[5]),
                    shuffle<0, 1>(v[7], v[8])};
        }
    }
};

// Tiles of at most so many rows and columns, band by band.
template <int most, class Height, class Width, class EachTile>
VORM_INLINE void inBands(Height height, Width width, const EachTile& tile)
{
    const auto band = [&]<int rows>(int r) VORM_INLINE_LAMBDA {
        int c = 0;
        for (; c + most <= width; c += most) tile.template operator()<rows, most>(r, c);
        if constexpr (most == 4)
            if (width & 2) tile.template operator()<rows, 2>(r, c), c += 2;
        if (width & 1) tile.template operator()<rows, 1>(r, c);
    };
    int r = 0;
    for (; r + most <= height; r += most) band.template operator()<most>(r);
    if constexpr (most == 4)
        if (height & 2) band.template operator()<2>(r), r += 2;
    if (height & 1) band.template operator()<1>(r);
}

}  // namespace vorm
