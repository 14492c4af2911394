// The general path for contiguous rows. How a sum is formed depends on where its row of D lies: the
// rows up to the last multiple of four are computed in tiles, the one to three left over have an
// order of their own. The shape of a tile is free.
//
//   tiles                 from zero, ascending k
//   one or two rows left  one sum over even and one over odd k, added at the end, then the last
//                         product alone when the number of terms is odd
//   three rows left       from zero, ascending k
//
// but mt, both of whose operands run along k:
//
//   float, tiles          four lanes along k, folded as (l0 + l1) + (l2 + l3), then the rest one by one
//   double, tiles         from zero, ascending k
//   float, rows left      groups of eight k in two such registers, which are added before the fold
//   double, rows left     groups of eight k in eight sums, folded as
//                         ((s0 + s1) + (s2 + s3)) + ((s4 + s5) + (s6 + s7)), then the rest one by one
#pragma once

#include "frame/pin.hpp"
#include "frame/small_matrix.hpp"

namespace vorm::products {

enum class SumOrder { running, evenAndOdd };

// The view from row r and column c on. ---------------------------------------------------------------

template <class T>
VORM_INLINE Matrix<T, Adjacent> from(const Matrix<T, Adjacent>& view, int r, int c)
{
    return {advance(view.p, std::ptrdiff_t{r} * view.stride1) + c, view.stride1, adjacent};
}
template <class Stored>
VORM_INLINE Transposed<Stored> from(const Transposed<Stored>& view, int r, int c)
{
    return {from(view.stored, c, r)};
}

// Some lanes of row r from column c on, as far as they exist. -------------------------------------

template <class T, int some, class View>
VORM_INLINE Lanes<T> loadAcross(const View& view, int r, int c)
{
    if constexpr (View::isAdjacent && some == Lanes<T>::width)
        return Lanes<T>::load(advance(view.p, std::ptrdiff_t{r} * view.stride1) + c);
    else
        return lanes<T>([&](int l) VORM_INLINE_LAMBDA { return l < some ? T(view(0, r, c + l)) : T(0); });
}

template <class T, int some, class View>
VORM_INLINE void storeAcross(const View& view, int r, int c, Lanes<T> v)
{
    if constexpr (View::isAdjacent && some == Lanes<T>::width)
        v.store(advance(view.p, std::ptrdiff_t{r} * view.stride1) + c);
    else
        unrolled<some>([&](auto k) VORM_INLINE_LAMBDA { view(0, r, c + k) = firstLane(splat<k>(v)); });
}

// Tiles along the rows of B and D. ------------------------------------------------------------------

// The rows of A and the terms from k on, some at a time: get<i, ahead> is A(i, k + ahead) in all lanes.
template <class T, int height, class A>
struct TermsOf {
    static constexpr int width = Lanes<T>::width;
    static constexpr bool inRows = sizeof(T) == sizeof(float) && A::isAdjacent;
    static constexpr bool inColumns = sizeof(T) == sizeof(float) && isTransposed<A> && height == width;
    const A& a;
    int k;
    Lanes<T> loaded[width];
    VORM_INLINE TermsOf(const A& a_, int k_) : a(a_), k(k_)
    {
        if constexpr (inRows)
            for (int i = 0; i < height; ++i) loaded[i] = loadAcross<T, width>(a, i, k);
        if constexpr (inColumns)
            for (int ahead = 0; ahead < width; ++ahead) loaded[ahead] = loadAcross<T, width>(a.stored, k + ahead, 0);
    }
    template <int i, int ahead>
    VORM_INLINE Lanes<T> get() const
    {
        if constexpr (inRows)
            return splat<ahead>(loaded[i]);
        else if constexpr (inColumns)
            return splat<i>(loaded[ahead]);
        else
            return T(a(0, i, k + ahead));
    }
};
// One term.
template <class T, class A>
struct TermOf {
    const A& a;
    int k;
    template <int i, int>
    VORM_INLINE Lanes<T> get() const
    {
        return T(a(0, i, k));
    }
};

// The sums of a tile, row by row: from each row of B on the products with a column of A are added to them.
template <int ahead, int registers, int some, class T, int all, class Terms, class B>
VORM_INLINE void addTerm(Lanes<T> (&sum)[all], const Terms& terms, const B& b, int k)
{
    Lanes<T> rowOfB[registers];
    unrolled<registers>([&](auto p) VORM_INLINE_LAMBDA { rowOfB[p] = loadAcross<T, some>(b, k, p * Lanes<T>::width); });
    unrolled<all>([&](auto s) VORM_INLINE_LAMBDA {
        sum[s] = sum[s] + terms.template get<s / registers, ahead>() * rowOfB[s % registers];
        pin(sum[s]);
    });
}

// height rows, registers side by side; some of their lanes are in use. A known number of terms, a multiple
// of four as an integral_constant, makes straight-line code.
template <class T, SumOrder sums, int height, int registers, int some, class A, class B, class D, class Terms>
VORM_INLINE void generalTileHere(const A& a, const B& b, const D& dst, Terms terms)
{
    constexpr int width = Lanes<T>::width, all = height * registers;
    Lanes<T> sum[all];
    unrolled<all>([&](auto s) VORM_INLINE_LAMBDA { sum[s] = T(0); });
    const auto one = [&](int k) VORM_INLINE_LAMBDA { addTerm<0, registers, some>(sum, TermOf<T, A>{a, k}, b, k); };
    const auto four = [&](int k) VORM_INLINE_LAMBDA {
        if constexpr (width == 4) {
            const TermsOf<T, height, A> ofA(a, k);
            unrolled<4>([&](auto ahead)
                            VORM_INLINE_LAMBDA { addTerm<ahead, registers, some>(sum, ofA, b, k + ahead); });
        } else {
            unrolled<4>([&](auto ahead) VORM_INLINE_LAMBDA { one(k + ahead); });
        }
    };
    int k = 0;
    if constexpr (!std::is_integral_v<Terms>) {
        static_assert(sums == SumOrder::running && Terms::value % 4 == 0);
        unrolled<Terms::value / 4>([&](auto q) VORM_INLINE_LAMBDA { four(4 * q); });
    } else if constexpr (sums == SumOrder::running) {
        for (; width == 4 && k + width <= terms; k += width) four(k);
    } else {
        Lanes<T> odd[all];
        unrolled<all>([&](auto s) VORM_INLINE_LAMBDA { odd[s] = T(0); });
        for (; k + 2 <= terms; k += 2) {
            one(k);
            addTerm<0, registers, some>(odd, TermOf<T, A>{a, k + 1}, b, k + 1);
        }
        unrolled<all>([&](auto s) VORM_INLINE_LAMBDA { sum[s] = sum[s] + odd[s]; });
    }
    if constexpr (std::is_integral_v<Terms>)
        for (; k < terms; ++k) one(k);
    unrolled<all>([&](auto s)
                      VORM_INLINE_LAMBDA { storeAcross<T, some>(dst, s / registers, s % registers * width, sum[s]); });
}

// A function of its own for each, so that the many tiles of a product do not share its registers.
template <class T, SumOrder sums, int height, int registers, int some, class A, class B, class D>
[[gnu::noinline]] void generalTile(const A a, const B b, const D dst, int terms)
{
    generalTileHere<T, sums, height, registers, some>(a, b, dst, terms);
}

// The bulk of a product: a multiple of four rows, and of two registers of columns.
template <class T, class A, class B, class D, class Terms>
VORM_INLINE void fullTilesHere(const A& a, const B& b, const D& dst, int rows, int columns, Terms terms)
{
    constexpr int breadth = 2 * Lanes<T>::width;
    for (int r = 0; r < rows; r += 4)
        for (int c = 0; c < columns; c += breadth)
            generalTileHere<T, SumOrder::running, 4, 2, Lanes<T>::width>(from(a, r, 0), from(b, 0, c), from(dst, r, c),
                                                                         terms);
}
template <class T, class A, class B, class D>
[[gnu::noinline]] void fullTiles(const A a, const B b, const D dst, int rows, int columns, int terms)
{
    fullTilesHere<T>(a, b, dst, rows, columns, terms);
}

// Strips of tiles: height rows each from row r up to toRow, columns c up to toColumn.
template <class T, SumOrder sums, int height, class A, class B, class D>
[[gnu::noinline]] void strips(const A a, const B b, const D dst, int r, int toRow, int c, int toColumn, int terms)
{
    constexpr int width = Lanes<T>::width;
    for (; r < toRow; r += height) {
        const A rows = from(a, r, 0);
        const auto across = [&]<int registers, int some>(int j) VORM_INLINE_LAMBDA {
            generalTile<T, sums, height, registers, some>(rows, from(b, 0, j), from(dst, r, j), terms);
        };
        int j = c;
        if constexpr (height != 4)
            for (; j + 2 * width <= toColumn; j += 2 * width) across.template operator()<2, width>(j);
        if (j + width <= toColumn) {
            across.template operator()<1, width>(j);
            j += width;
        }
        const int left = toColumn - j;
        if (left == 1) across.template operator()<1, 1>(j);
        if constexpr (width == 4) {
            if (left == 2) across.template operator()<1, 2>(j);
            if (left == 3) across.template operator()<1, 3>(j);
        }
    }
}
template <class T, class A, class B, class D>
VORM_INLINE void tiles(const A& a, const B& b, const D& dst, int rows, int columns, int terms)
{
    const int full = columns & -(2 * Lanes<T>::width);
    if (full != 0) fullTiles<T>(a, b, dst, rows, full, terms);
    if (full != columns) strips<T, SumOrder::running, 4>(a, b, dst, 0, rows, full, columns, terms);
}

// Tiles along k, for rows of A and columns of B that both run along it. ---------------------------

VORM_INLINE Lanes<float> pairs(Lanes<float> a, Lanes<float> b) { return _mm_hadd_ps(a.v, b.v); }
VORM_INLINE Lanes<double> pairs(Lanes<double> a, Lanes<double> b) { return _mm_hadd_pd(a.v, b.v); }

// The sums of one column, folded: of four elements in a register each, or of one element in two or four.
template <int registers, class T>
VORM_INLINE void fold(const Lanes<T>* s, T* total)
{
    if constexpr (registers == 1) {
        pairs(pairs(s[0], s[1]), pairs(s[2], s[3])).store(total);
    } else {
        Lanes<T> half;
        if constexpr (registers == 2)
            half = s[0] + s[1], half = pairs(half, half);
        else
            half = pairs(pairs(s[0], s[1]), pairs(s[2], s[3]));
        *total = firstLane(pairs(half, half));
    }
}

// height rows, breadth columns; each element has that many registers of sums.
template <class T, int registers, int height, int breadth>
[[gnu::noinline]] void dots(const Matrix<const T, Adjacent> a, const Matrix<const T, Adjacent> b,
                            const Matrix<T, Adjacent> dst, int terms)
{
    constexpr int width = Lanes<T>::width, column = height * registers;
    Lanes<T> sum[breadth * column];
    unrolled<breadth * column>([&](auto s) VORM_INLINE_LAMBDA { sum[s] = T(0); });

    int k = 0;
    for (; k + registers * width <= terms; k += registers * width) {
        Lanes<T> ofB[breadth * registers];
        unrolled<breadth * registers>([&](auto p) VORM_INLINE_LAMBDA {
            ofB[p] = loadAcross<T, width>(b, p / registers, k + p % registers * width);
        });
        unrolled<column * breadth>([&](auto s) VORM_INLINE_LAMBDA {
            constexpr int i = s / breadth, j = s % breadth;  // both columns of a row together
            const Lanes<T> ofA = loadAcross<T, width>(a, i / registers, k + i % registers * width);
            Lanes<T>& to = sum[j * column + i];
            to = to + ofA * ofB[j * registers + i % registers];
        });
    }
    unrolled<breadth>([&](auto j) VORM_INLINE_LAMBDA {
        T total[height];
        fold<registers>(&sum[j * column], total);
        for (int rest = k; rest < terms; ++rest)
            for (int i = 0; i < height; ++i) total[i] += a(0, i, rest) * b(0, j, rest);
        for (int i = 0; i < height; ++i) dst(0, i, j) = total[i];
    });
}

}  // namespace vorm::products
