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
//   float, rows left      groups of eight k in two such registers, which are added before the fold
//   double, rows left     groups of eight k in eight sums, folded as
//                         ((s0 + s1) + (s2 + s3)) + ((s4 + s5) + (s6 + s7)), then the rest one by one
#pragma once

#include "frame/small_matrix.hpp"
#include "products/matrix_kinds.hpp"

namespace vorm {

enum class Sums { running, evenAndOdd };

// Some lanes of row r from column c on, as far as they exist. -------------------------------------

template <class T, int some, class View>
VORM_INLINE Lanes<T> loadAcross(const View& view, int r, int c)
{
    if constexpr (adjacentRows<View> && some == Lanes<T>::width)
        return Lanes<T>::load(advance(view.p, std::ptrdiff_t{r} * view.stride1) + c);
    else
        return lanes<T>([&](int l) VORM_INLINE_LAMBDA { return l < some ? T(view(0, r, c + l)) : T(0); });
}

template <class T, int some, class View>
VORM_INLINE void storeAcross(const View& view, int r, int c, Lanes<T> v)
{
    if constexpr (adjacentRows<View> && some == Lanes<T>::width)
        v.store(advance(view.p, std::ptrdiff_t{r} * view.stride1) + c);
    else
        unrolled<some>([&](auto k) VORM_INLINE_LAMBDA { view(0, r, c + k) = firstLane(splat<k>(v)); });
}

// Tiles along the rows of B and D. ------------------------------------------------------------------

// Rows r to r + height of A and the terms from k on, some at a time: get<i, ahead> is A(r + i, k + ahead)
// in all lanes.
template <class T, int height, class A>
struct TermsOf {
    static constexpr int width = Lanes<T>::width;
    static constexpr bool inRows = sizeof(T) == sizeof(float) && adjacentRows<A>;
    static constexpr bool inColumns = sizeof(T) == sizeof(float) && isTransposed<A> && height == width;
    const A& a;
    int r, k;
    Lanes<T> loaded[width];
    VORM_INLINE TermsOf(const A& a_, int r_, int k_) : a(a_), r(r_), k(k_)
    {
        if constexpr (inRows)
            for (int i = 0; i < height; ++i) loaded[i] = loadAcross<T, width>(a, r + i, k);
        if constexpr (inColumns)
            for (int ahead = 0; ahead < width; ++ahead) loaded[ahead] = loadAcross<T, width>(a.stored, k + ahead, r);
    }
    template <int i, int ahead>
    VORM_INLINE Lanes<T> get() const
    {
        if constexpr (inRows)
            return splat<ahead>(loaded[i]);
        else if constexpr (inColumns)
            return splat<i>(loaded[ahead]);
        else
            return T(a(0, r + i, k + ahead));
    }
};

// height rows from r on, registers side by side from column c on; some of their lanes are in use.
template <class T, Sums sums, int height, int registers, int some, class A, class B, class D>
VORM_INLINE void tile(const A& a, const B& b, const D& dst, int r, int c, int terms)
{
    constexpr int width = Lanes<T>::width, accumulators = sums == Sums::running ? 1 : 2;
    Lanes<T> sum[accumulators][height][registers];
    for (auto& accumulator : sum)
        for (auto& row : accumulator)
            for (auto& s : row) s = T(0);

    const auto add = [&](int k, const auto& factor, Lanes<T>(&to)[height][registers]) VORM_INLINE_LAMBDA {
        Lanes<T> rowOfB[registers];
        for (int p = 0; p < registers; ++p) rowOfB[p] = loadAcross<T, some>(b, k, c + p * width);
        unrolled<height>([&](auto i) VORM_INLINE_LAMBDA {
            const Lanes<T> factorOfRow = factor(i);
            for (int p = 0; p < registers; ++p) {
                to[i][p] = to[i][p] + factorOfRow * rowOfB[p];
                __asm__("" : "+x"(to[i][p].v));  // or g++ adds up one sum after the other and spills the rest
            }
        });
    };
    const auto addOne = [&](int k, Lanes<T>(&to)[height][registers]) VORM_INLINE_LAMBDA {
        add(
            k, [&](int i) VORM_INLINE_LAMBDA { return T(a(0, r + i, k)); }, to);
    };
    if constexpr (sums == Sums::running) {
        int k = 0;
        for (; width == 4 && k + width <= terms; k += width) {
            const TermsOf<T, height, A> factors(a, r, k);
            unrolled<width>([&](auto ahead) VORM_INLINE_LAMBDA {
                add(
                    k + ahead, [&](auto i) VORM_INLINE_LAMBDA { return factors.template get<i, ahead>(); }, sum[0]);
            });
        }
        for (; k < terms; ++k) addOne(k, sum[0]);
    } else {
        for (int k = 0; k + 2 <= terms; k += 2) addOne(k, sum[0]), addOne(k + 1, sum[1]);
        for (int i = 0; i < height; ++i)
            for (int p = 0; p < registers; ++p) sum[0][i][p] = sum[0][i][p] + sum[1][i][p];
        if (terms % 2 != 0) addOne(terms - 1, sum[0]);
    }
    for (int i = 0; i < height; ++i)
        for (int p = 0; p < registers; ++p) storeAcross<T, some>(dst, r + i, c + p * width, sum[0][i][p]);
}

// The columns from c on that do not fill a register.
template <class T, Sums sums, int height, class A, class B, class D>
VORM_INLINE void edge(const A& a, const B& b, const D& dst, int r, int c, int end, int terms)
{
    if (end - c == 1) tile<T, sums, height, 1, 1>(a, b, dst, r, c, terms);
    if constexpr (Lanes<T>::width == 4) {
        if (end - c == 2) tile<T, sums, height, 1, 2>(a, b, dst, r, c, terms);
        if (end - c == 3) tile<T, sums, height, 1, 3>(a, b, dst, r, c, terms);
    }
}

// Strips of tiles: height rows each from row r up to toRow, columns c up to toColumn.
template <class T, Sums sums, int height, class A, class B, class D>
VORM_INLINE void strips(const A& a, const B& b, const D& dst, int r, int toRow, int c, int toColumn, int terms)
{
    constexpr int width = Lanes<T>::width;
    for (; r < toRow; r += height) {
        int j = c;
        for (; j + 2 * width <= toColumn; j += 2 * width) tile<T, sums, height, 2, width>(a, b, dst, r, j, terms);
        if (j + width <= toColumn) {
            tile<T, sums, height, 1, width>(a, b, dst, r, j, terms);
            j += width;
        }
        if (j < toColumn) edge<T, sums, height>(a, b, dst, r, j, toColumn, terms);
    }
}

// Tiles along k, for rows of A and columns of B that both run along it. ---------------------------

VORM_INLINE Lanes<float> pairs(Lanes<float> a, Lanes<float> b) { return _mm_hadd_ps(a.v, b.v); }
VORM_INLINE Lanes<double> pairs(Lanes<double> a, Lanes<double> b) { return _mm_hadd_pd(a.v, b.v); }

// The folded sums of four elements.
VORM_INLINE void fold(const Lanes<float> (&s)[4][1], float (&total)[4])
{
    pairs(pairs(s[0][0], s[1][0]), pairs(s[2][0], s[3][0])).store(total);
}
// The folded sum of one element.
VORM_INLINE void fold(const Lanes<float> (&s)[1][2], float (&total)[1])
{
    const Lanes<float> both = s[0][0] + s[0][1], folded = pairs(both, both);
    total[0] = firstLane(pairs(folded, folded));
}
VORM_INLINE void fold(const Lanes<double> (&s)[1][4], double (&total)[1])
{
    const Lanes<double> fours = pairs(pairs(s[0][0], s[0][1]), pairs(s[0][2], s[0][3]));
    total[0] = firstLane(pairs(fours, fours));
}

// height rows from r on, breadth columns from c on; each element has that many registers of sums.
template <class T, int registers, int height, int breadth, class D>
VORM_INLINE void dots(const Matrix<const T, Adjacent>& a, const Matrix<const T, Adjacent>& b, const D& dst, int r,
                      int c, int terms)
{
    constexpr int width = Lanes<T>::width;
    Lanes<T> sum[breadth][height][registers];
    for (auto& column : sum)
        for (auto& element : column)
            for (auto& s : element) s = T(0);

    int inGroups = 0;
    for (; inGroups + registers * width <= terms; inGroups += registers * width)
        for (int p = 0; p < registers; ++p) {
            const int k = inGroups + p * width;
            Lanes<T> ofB[breadth];
            for (int j = 0; j < breadth; ++j) ofB[j] = loadAcross<T, width>(b, c + j, k);
            for (int i = 0; i < height; ++i) {
                const Lanes<T> ofA = loadAcross<T, width>(a, r + i, k);
                for (int j = 0; j < breadth; ++j) sum[j][i][p] = sum[j][i][p] + ofA * ofB[j];
            }
        }
    for (int j = 0; j < breadth; ++j) {
        T total[height];
        fold(sum[j], total);
        for (int k = inGroups; k < terms; ++k)
            for (int i = 0; i < height; ++i) total[i] += a(0, r + i, k) * b(0, c + j, k);
        for (int i = 0; i < height; ++i) dst(0, r + i, c + j) = total[i];
    }
}

// -----------------------------------------------------------------------------------------------------

// One product of any size.
template <class Kind, class T>
[[gnu::noinline]] void generalProduct(const T* pSrc1, int src1Stride1, const T* pSrc2, int src2Stride1, T* pDst,
                                      int dstStride1, Lengths lengths)
{
    const Matrix stored1{pSrc1, src1Stride1, adjacent}, stored2{pSrc2, src2Stride1, adjacent};
    const Matrix dst{pDst, dstStride1, adjacent};
    const auto [m, n, terms] = lengths;
    const int tiled = m & ~3, left = m & 3;

    if constexpr (Kind::transposed1 && Kind::transposed2) {
        // Whole registers lie along the rows of the stored A only, that is along the columns of D.
        const Transposed columns{dst};
        const int fours = n & ~3;
        if (tiled != 0) {
            strips<T, Sums::running, 4>(stored2, stored1, columns, 0, fours, 0, tiled, terms);
            strips<T, Sums::running, 1>(stored2, stored1, columns, fours, n, 0, tiled, terms);
        }
        if (left == 3)
            strips<T, Sums::running, 1>(stored2, stored1, columns, 0, n, tiled, m, terms);
        else if (left != 0)
            strips<T, Sums::evenAndOdd, 1>(stored2, stored1, columns, 0, n, tiled, m, terms);
    } else if constexpr (Kind::transposed2) {
        if constexpr (sizeof(T) == sizeof(double)) {
            strips<T, Sums::running, 4>(stored1, Transposed{stored2}, dst, 0, tiled, 0, n, terms);
        } else {
            for (int i = 0; i < tiled; i += 4) {
                int j = 0;
                for (; j + 2 <= n; j += 2) dots<T, 1, 4, 2>(stored1, stored2, dst, i, j, terms);
                if (j < n) dots<T, 1, 4, 1>(stored1, stored2, dst, i, j, terms);
            }
        }
        for (int i = tiled; i < m; ++i)
            for (int j = 0; j < n; ++j) dots<T, 8 / Lanes<T>::width, 1, 1>(stored1, stored2, dst, i, j, terms);
    } else {
        const auto a = Kind::first(stored1);
        if (tiled != 0) strips<T, Sums::running, 4>(a, stored2, dst, 0, tiled, 0, n, terms);
        if (left == 1) strips<T, Sums::evenAndOdd, 1>(a, stored2, dst, tiled, m, 0, n, terms);
        if (left == 2) strips<T, Sums::evenAndOdd, 2>(a, stored2, dst, tiled, m, 0, n, terms);
        if (left == 3) strips<T, Sums::running, 3>(a, stored2, dst, tiled, m, 0, n, terms);
    }
}

}  // namespace vorm
