// Elimination and substitution of one matrix or of a register of them: each body once, for all layouts.

#include <array>
#include <numeric>

#include "factor/lu.hpp"
#include "factor/lu_elimination.hpp"
#include "factor/lu_solve.hpp"

namespace vorm {
namespace {

// Row k and, in each lane, the row whose number is given change places.
VORM_INLINE void exchangeRows(Lanes<float>* a, int k, const int (&pivot)[4], int n)
{
    Lanes<float>* const rowK = a + k * n;
    Lanes<float>* const rows[4] = {a + pivot[0] * n, a + pivot[1] * n, a + pivot[2] * n, a + pivot[3] * n};
    for (int c = 0; c < n; ++c) {
        __m128 top = rowK[c].v;
        unrolled<4>([&](auto l) VORM_INLINE_LAMBDA {
            const __m128 mask = _mm_castsi128_ps(_mm_setr_epi32(-(l == 0), -(l == 1), -(l == 2), -(l == 3)));
            const __m128 mine = rows[l][c].v, change = both(mask, differing(top, mine));
            top = differing(top, change);
            rows[l][c] = differing(mine, change);
        });
        rowK[c] = top;
    }
}
VORM_INLINE void exchangeRows(Lanes<double>* a, int k, const int (&pivot)[2], int n)
{
    Lanes<double>* const rowK = a + k * n;
    Lanes<double>* const rows[2] = {a + pivot[0] * n, a + pivot[1] * n};
    for (int c = 0; c < n; ++c) {
        const __m128d top = rowK[c].v, low = rows[0][c].v;
        rows[0][c] = _mm_move_sd(low, top);
        const __m128d high = rows[1][c].v;
        rows[1][c] = _mm_move_sd(top, high);
        rowK[c] = _mm_move_sd(high, low);
    }
}

// The first of the largest magnitudes in column k moves to row k, lane by lane, for any order: here the pivots'
// row numbers are addresses. a has n columns; rows has n numbers for each lane. Returns the magnitude.
template <class T>
VORM_INLINE Lanes<T> pivotToRow(Lanes<T>* a, int* rows, int k, int n)
{
    constexpr int width = Lanes<T>::width;
    Lanes<T> largest = abs(a[k * n + k]);
    __m128i pivots = bitsOf(rowNumber<T>(k).v);
    for (int i = k + 1; i < n; ++i) {
        const Lanes<T> magnitude = abs(a[i * n + k]);
        const __m128i displaced = bitsOf((magnitude > largest).bits);
        pivots = _mm_max_epi16(pivots, _mm_and_si128(displaced, bitsOf(rowNumber<T>(i).v)));
        largest = largerOf(magnitude, largest);
    }
    int numbers[4], pivot[width];
    _mm_storeu_si128(reinterpret_cast<__m128i*>(numbers), pivots);
    for (int l = 0; l < width; ++l) {
        pivot[l] = numbers[l * (4 / width)];
        std::swap(rows[l * n + k], rows[l * n + pivot[l]]);
    }
    exchangeRows(a, k, pivot, n);
    return largest;
}

}  // namespace

template <int n, class Number>
int luFactorise(LuBlock<n, Number>& lu)
{
    return luFactoriseHere(lu);
}

template <class T>
bool luFactorise(Lanes<T>* a, int* rows, int n)
{
    for (int l = 0; l < Lanes<T>::width; ++l) std::iota(rows + l * n, rows + (l + 1) * n, 0);
    const Lanes<T> epsilon = std::numeric_limits<T>::epsilon();
    for (int k = 0; k < n - 1; ++k) {
        if (any(pivotToRow(a, rows, k, n) <= epsilon)) return false;
        const Lanes<T>* const pivotRow = a + k * n;
        const Lanes<T> reciprocal = Lanes<T>(T(1)) / pivotRow[k];
        int i = k + 1;
        for (; i + 1 < n; i += 2) {
            Lanes<T>*const row = a + i * n, *const next = row + n;
            const Lanes<T> factor = row[k] * reciprocal, nextFactor = next[k] * reciprocal;
            row[k] = factor, next[k] = nextFactor;
            for (int j = k + 1; j < n; ++j) {
                const Lanes<T> pivot = pivotRow[j];
                row[j] = row[j] - pivot * factor;
                next[j] = next[j] - pivot * nextFactor;
            }
        }
        if (i < n) {
            Lanes<T>* const row = a + i * n;
            const Lanes<T> factor = row[k] * reciprocal;
            row[k] = factor;
            for (int j = k + 1; j < n; ++j) row[j] = row[j] - pivotRow[j] * factor;
        }
    }
    return !any(abs(a[n * n - 1]) <= epsilon);
}
template bool luFactorise(Lanes<float>* a, int* rows, int n);
template bool luFactorise(Lanes<double>* a, int* rows, int n);

// Sums of up to luLanesOrder - 1 products, from zero, whose number of terms is known: loops over so few
// terms cost as much as the terms. Eight terms go to sums of their own, as sumOfProducts has it. Several
// registers of vectors are summed up at once, as every sum waits for its last unknown.
template <int several, class T>
struct Sums {
    Lanes<T> total[several];
};
template <int terms, int several, class T>
Sums<several, T> sumsOf(const Lanes<T>* row, const Lanes<T>* x)
{
    static_assert(terms < 16);
    constexpr int group = terms >= 8 ? 8 : 0;
    Sums<several, T> sums;
    auto& total = sums.total;
    for (int r = 0; r < several; ++r) {
        const auto term = [&](int j) VORM_INLINE_LAMBDA { return Lanes<T>(T(0)) + row[j] * x[j * several + r]; };
        total[r] = T(0);
        if constexpr (group == 8)
            total[r] = ((term(0) + term(1)) + (term(2) + term(3))) + ((term(4) + term(5)) + (term(6) + term(7)));
    }
    unrolled<terms - group>([&](auto j) VORM_INLINE_LAMBDA {
        for (int r = 0; r < several; ++r) total[r] = total[r] + row[group + j] * x[(group + j) * several + r];
    });
    return sums;
}
template <class T, int several, int... terms>
constexpr auto sumsByTerms(std::integer_sequence<int, terms...>)
{
    return std::array{sumsOf<terms, several, T>...};
}

template <int several, class T>
void luSubstitute(const Lanes<T>* lu, Lanes<T>* x, int n)
{
    static constexpr auto byTerms = sumsByTerms<T, several>(std::make_integer_sequence<int, luLanesOrder>{});
    for (int i = 1; i < n; ++i) {
        const auto sums = byTerms[std::size_t(i)](lu + i * n, x);
        for (int r = 0; r < several; ++r) x[i * several + r] = x[i * several + r] - sums.total[r];
    }
    for (int r = 0; r < several; ++r) x[(n - 1) * several + r] = x[(n - 1) * several + r] / lu[n * n - 1];
    for (int i = n - 2; i >= 0; --i) {
        const auto sums = byTerms[std::size_t(n - 1 - i)](lu + i * n + i + 1, x + (i + 1) * several);
        for (int r = 0; r < several; ++r) x[i * several + r] = (x[i * several + r] - sums.total[r]) / lu[i * n + i];
    }
}
template void luSubstitute<1>(const Lanes<float>* lu, Lanes<float>* x, int n);
template void luSubstitute<1>(const Lanes<double>* lu, Lanes<double>* x, int n);
template void luSubstitute<luRegisters>(const Lanes<float>* lu, Lanes<float>* x, int n);
template void luSubstitute<luRegisters>(const Lanes<double>* lu, Lanes<double>* x, int n);

#define LU_BLOCKS(n, T)                          \
    template int luFactorise(LuBlock<n, T>& lu); \
    template int luFactorise(LuBlock<n, Lanes<T>>& lu);
#define LU_BLOCKS_OF_TYPE(T) LU_BLOCKS(3, T) LU_BLOCKS(4, T) LU_BLOCKS(5, T) LU_BLOCKS(6, T)

LU_BLOCKS_OF_TYPE(float)
LU_BLOCKS_OF_TYPE(double)

}  // namespace vorm
