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

// height rows from r on, registers side by side from column c on; some
// of their lanes are in use.
template <class T, Sums sums, int height, int registers, int some, class A, class B, class D>
VORM_INLINE void tile(const A& a, const B& b, const D& dst, int r, int c, int terms)
{
    constexpr int width = Lanes<T>::width, accumulators = sums == Sums::running ? 1 : 2;
    Lanes<T> sum[accumulators][height][registers];
    for (auto& accumulator : sum)
        for (auto& row : accumulator)
            for (auto& s : row) s = T(0);

    const auto add = [&](int k, Lanes<T>(&to)[height][registers]) VORM_INLINE_LAMBDA {
        Lanes<T> rowOfB[registers];
        for (int p = 0; p < registers; ++p) rowOfB[p] = loadAcross<T, some>(b, k, c + p * width);
        for (int i = 0; i < height; ++i) {
            const Lanes<T> factor = T(a(0, r + i, k));
            for (int p = 0; p < registers; ++p) to[i][p] = to[i][p] + factor * rowOfB[p];
        }
    };
    if constexpr (sums == Sums::running) {
        for (int k = 0; k < terms; ++k) add(k, sum[0]);
    } else {
        for (int k = 0; k + 2 <= terms; k += 2) add(k, sum[0]), add(k + 1, sum[1]);
        for (int i = 0; i < height; ++i)
            for (int p = 0; p < registers; ++p) sum[0][i][p] = sum[0][i][p] + sum[1][i][p];
        if (terms % 2 != 0) add(terms - 1, sum[0]);
    }
    for (int i = 0; i < height; ++i)
        for (int p = 0; p < registers; ++p) storeAcross<T, some>(dst, r + i, c + p * width, sum[0][i][p]);
}

// A strip of tiles, columns c up to end.
template <class T, Sums sums, int height, class A, class B, class D>
VORM_INLINE void strip(const A& a, const B& b, const D& dst, int r, int c, int end, int terms)
{
    constexpr int width = Lanes<T>::width;
    for (; c + 2 * width <= end; c += 2 * width) tile<T, sums, height, 2, width>(a, b, dst, r, c, terms);
    if (c + width <= end) {
        tile<T, sums, height, 1, width>(a, b, dst, r, c, terms);
        c += width;
    }
    if (end - c == 1) tile<T, sums, height, 1, 1>(a, b, dst, r, c, terms);
    if constexpr (width == 4) {
        if (end - c == 2) tile<T, sums, height, 1, 2>(a, b, dst, r, c, terms);
        if (end - c == 3) tile<T, sums, height, 1, 3>(a, b, dst, r, c, terms);
    }
}

// Tiles along k, for rows of A and columns of B that both run along it. ---------------------------

VORM_INLINE float fold(const Lanes<float> (&s)[1])
{
    const __m128 pairs = _mm_hadd_ps(s[0].v, s[0].v);
    return firstLane(Lanes<float>(_mm_hadd_ps(pairs, pairs)));
}
VORM_INLINE float fold(const Lanes<float> (&s)[2])
{
    const Lanes<float> both[1] = {s[0] + s[1]};
    return fold(both);
}
VORM_INLINE double fold(const Lanes<double> (&s)[4])
{
    const __m128d fours = _mm_hadd_pd(_mm_hadd_pd(s[0].v, s[1].v), _mm_hadd_pd(s[2].v, s[3].v));
    return firstLane(Lanes<double>(_mm_hadd_pd(fours, fours)));
}

// height rows from r on, breadth columns from c on; each element has that many registers of sums.
template <class T, int registers, int height, int breadth, class D>
VORM_INLINE void dots(const Matrix<const T, Adjacent>& a, const Matrix<const T, Adjacent>& b, const D& dst, int r,
                      int c, int terms)
{
    constexpr int width = Lanes<T>::width;
    const auto along = [](const auto& view, int row, int k) VORM_INLINE_LAMBDA {
        return Lanes<T>::load(advance(view.p, std::ptrdiff_t{row} * view.stride1) + k);
    };
    Lanes<T> sum[height][breadth][registers];
    for (auto& row : sum)
        for (auto& element : row)
            for (auto& s : element) s = T(0);

    int inGroups = 0;
    for (; inGroups + registers * width <= terms; inGroups += registers * width)
        for (int p = 0; p < registers; ++p)
            for (int j = 0; j < breadth; ++j) {
                const Lanes<T> ofB = along(b, c + j, inGroups + p * width);
                for (int i = 0; i < height; ++i)
                    sum[i][j][p] = sum[i][j][p] + along(a, r + i, inGroups + p * width) * ofB;
            }
    for (int i = 0; i < height; ++i)
        for (int j = 0; j < breadth; ++j) {
            T total = fold(sum[i][j]);
            for (int k = inGroups; k < terms; ++k) total += a(0, r + i, k) * b(0, c + j, k);
            dst(0, r + i, c + j) = total;
        }
}

// -----------------------------------------------------------------------------------------------------

// One product of any size.
template <class Kind, class T> [[gnu::noinline]] void generalProduct(const T* pSrc1, int src1Stride1, const T* pSrc2,
                                                                     int src2Stride1, T* pDst, int dstStride1,
                                                                     Lengths lengths)
{
    const Matrix stored1{pSrc1, src1Stride1, adjacent}, stored2{pSrc2, src2Stride1, adjacent};
    const Matrix dst{pDst, dstStride1, adjacent};
    const auto [m, n, terms] = lengths;
    const int tiled = m & ~3, left = m & 3;

    if constexpr (Kind::transposed1 && Kind::transposed2) {
        // Whole registers lie along the rows of the stored A only, that is along the columns of D.
        const Transposed columns{dst};
        const auto rows = [&]<int height>(int j) VORM_INLINE_LAMBDA {
            strip<T, Sums::running, height>(stored2, stored1, columns, j, 0, tiled, terms);
            if (left == 3)
                strip<T, Sums::running, height>(stored2, stored1, columns, j, tiled, m, terms);
            else
                strip<T, Sums::evenAndOdd, height>(stored2, stored1, columns, j, tiled, m, terms);
        };
        int j = 0;
        for (; j + 4 <= n; j += 4) rows.template operator()<4>(j);
        for (; j < n; ++j) rows.template operator()<1>(j);
    } else if constexpr (Kind::transposed2) {
        for (int i = 0; i < tiled; i += 4) {
            if constexpr (sizeof(T) == sizeof(double)) {
                strip<T, Sums::running, 4>(stored1, Transposed{stored2}, dst, i, 0, n, terms);
            } else {
                int j = 0;
                for (; j + 2 <= n; j += 2) dots<T, 1, 4, 2>(stored1, stored2, dst, i, j, terms);
                if (j < n) dots<T, 1, 4, 1>(stored1, stored2, dst, i, j, terms);
            }
        }
        constexpr int registers = 8 / Lanes<T>::width;
        for (int j = 0; j < n; ++j) {
            if (left == 1) dots<T, registers, 1, 1>(stored1, stored2, dst, tiled, j, terms);
            if (left == 2) dots<T, registers, 2, 1>(stored1, stored2, dst, tiled, j, terms);
            if (left == 3) dots<T, registers, 3, 1>(stored1, stored2, dst, tiled, j, terms);
        }
    } else {
        const auto a = Kind::first(stored1);
        for (int i = 0; i < tiled; i += 4) strip<T, Sums::running, 4>(a, stored2, dst, i, 0, n, terms);
        if (left == 1) strip<T, Sums::evenAndOdd, 1>(a, stored2, dst, tiled, 0, n, terms);
        if (left == 2) strip<T, Sums::evenAndOdd, 2>(a, stored2, dst, tiled, 0, n, terms);
        if (left == 3) strip<T, Sums::running, 3>(a, stored2, dst, tiled, 0, n, terms);
    }
}

}  // namespace vorm
