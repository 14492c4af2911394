// Elimination and substitution of one matrix or of a register of them: each body once, for all layouts.

#include <array>
#include <cstdint>

#include "factor/lu.hpp"
#include "factor/lu_elimination.hpp"
#include "factor/lu_solve_general.hpp"

namespace vorm {
namespace {

// Row by row: lane k of a multiplier's row is the multiplier f, the lanes before keep x, those behind are y.
template <int k>
VORM_INLINE Lanes<float> withFactor(Lanes<float> x, Lanes<float> f, Lanes<float> y)
{
    const auto joined = [](__m128 low, __m128 high) VORM_INLINE_LAMBDA { return _mm_shuffle_ps(low, high, 0xe4); };
    if constexpr (k == 0) return _mm_move_ss(y.v, f.v);
    if constexpr (k == 1) return joined(_mm_unpacklo_ps(x.v, f.v), y.v);
    if constexpr (k == 2) return joined(x.v, _mm_unpackhi_ps(f.v, y.v));
    return _mm_movelh_ps(x.v, _mm_unpackhi_ps(x.v, f.v));
}
template <int k>
VORM_INLINE Lanes<double> withFactor(Lanes<double> x, Lanes<double> f, Lanes<double> y)
{
    return k == 0 ? _mm_move_sd(y.v, f.v) : _mm_move_sd(f.v, x.v);
}

// Lane k of each.
template <int k>
VORM_INLINE Lanes<float> lanesOf(const Lanes<float> (&x)[4])
{
    const auto pair = [](Lanes<float> a, Lanes<float> b)
                          VORM_INLINE_LAMBDA { return k < 2 ? _mm_unpacklo_ps(a.v, b.v) : _mm_unpackhi_ps(a.v, b.v); };
    const __m128 low = pair(x[0], x[1]), high = pair(x[2], x[3]);
    return k % 2 == 0 ? _mm_movelh_ps(low, high) : _mm_movehl_ps(high, low);
}
template <int k>
VORM_INLINE Lanes<double> lanesOf(const Lanes<double> (&x)[2])
{
    return k == 0 ? _mm_unpacklo_pd(x[0].v, x[1].v) : _mm_unpackhi_pd(x[0].v, x[1].v);
}

// Finds the pivots of a column as its elements go by, row after row: lane by lane the first of the largest.
template <class T>
struct PivotSearch {
    Lanes<T> largest;
    __m128i rows;
    VORM_INLINE PivotSearch(Lanes<T> element, int row) : largest(abs(element)), rows(bitsOf(rowNumber<T>(row).v)) {}
    VORM_INLINE void see(Lanes<T> element, int row)
    {
        const Lanes<T> magnitude = abs(element);
        const __m128i displaced = bitsOf((magnitude > largest).bits);
        rows = _mm_max_epi16(rows, _mm_and_si128(displaced, bitsOf(rowNumber<T>(row).v)));
        largest = larger(magnitude, largest);
    }
};

// The row numbers of one object, four bits each: in memory a load of one would often overtake the exchange before it.
class RowOrder {
public:
    VORM_INLINE void exchange(int i, int j)
    {
        const std::uint64_t differing = (rows_ >> 4 * i ^ rows_ >> 4 * j) & 15;
        rows_ ^= differing << 4 * i ^ differing << 4 * j;
    }
    VORM_INLINE std::ptrdiff_t operator[](int i) const { return rows_ >> 4 * i & 15; }

private:
    std::uint64_t rows_ = 0xfedcba9876543210;
};

// As many objects as a register has lanes, step by step together, as each of them would mostly wait for itself. Rows
// are of several registers and stay where they are; what is one number for each object lies in lanes.
template <int registers, class T>
bool luFactoriseRows(Lanes<T>* a, int* order, int n)
{
    constexpr int width = Lanes<T>::width;
    RowOrder rows[width];
    Lanes<T>* objects[width];
    for (int l = 0; l < width; ++l) objects[l] = a + l * n * registers;
    const Lanes<T> epsilon = luEpsilon<T>;
    const auto firstElement = [&](int i) VORM_INLINE_LAMBDA {
        Lanes<T> first[width];
        for (int l = 0; l < width; ++l) first[l] = objects[l][i * registers];
        return lanesOf<0>(first);
    };
    PivotSearch<T> search(firstElement(0), 0);
    for (int i = 1; i < n; ++i) search.see(firstElement(i), i);
    const auto step = [&](auto register_, auto lane_) VORM_INLINE_LAMBDA {
        constexpr int j = register_, lane = lane_, k = j * width + lane;
        constexpr int nextLane = (lane + 1) % width, next = lane + 1 < width ? j : j + 1;
        if (k >= n - 1) return true;
        if (any(search.largest <= epsilon)) return false;
        int numbers[4];
        _mm_storeu_si128(reinterpret_cast<__m128i*>(numbers), search.rows);
        const Lanes<T>* pivotRows[width];
        Lanes<T> pivots[width], reciprocals[width];
        for (int l = 0; l < width; ++l) {
            rows[l].exchange(k, numbers[l * (4 / width)]);
            pivotRows[l] = objects[l] + rows[l][k] * registers;
            pivots[l] = pivotRows[l][j];
        }
        const Lanes<T> reciprocal = reciprocalOf(lanesOf<lane>(pivots), search.largest);
        unrolled<width>([&](auto l) VORM_INLINE_LAMBDA { reciprocals[l] = splat<l>(reciprocal); });
        for (int i = k + 1; i < n; ++i) {
            Lanes<T> ahead[width];
            for (int l = 0; l < width; ++l) {
                Lanes<T>* const row = objects[l] + rows[l][i] * registers;
                const Lanes<T> x = row[j], factor = splat<lane>(x) * reciprocals[l];
                ahead[l] = row[j] = withFactor<lane>(x, factor, x - pivots[l] * factor);
                for (int r = j + 1; r < registers; ++r) {
                    row[r] = row[r] - pivotRows[l][r] * factor;
                    if (r == next) ahead[l] = row[r];
                }
            }
            const Lanes<T> element = lanesOf<nextLane>(ahead);
            if (i == k + 1)
                search = PivotSearch<T>(element, i);
            else
                search.see(element, i);
        }
        return true;
    };
    const bool passed = [&]<int... k>(std::integer_sequence<int, k...>) VORM_INLINE_LAMBDA
    {
        return (... && step(std::integral_constant<int, k / width>{}, std::integral_constant<int, k % width>{}));
    }
    (std::make_integer_sequence<int, registers * width - 1>{});
    if (!passed || any(search.largest <= epsilon)) return false;
    for (int l = 0; l < width; ++l)
        for (int k = 0; k < n; ++k) order[l * n + k] = static_cast<int>(rows[l][k]);
    return true;
}

}  // namespace

template <bool rowsStay, int n, class Number>
int luFactorise(LuBlock<n, Number>& lu)
{
    return luFactoriseHere<rowsStay>(lu);
}

template <class T>
bool luFactorise(Lanes<T>* a, int* order, int n)
{
    switch (luRegistersOf<T>(n)) {
    case 1: return luFactoriseRows<1>(a, order, n);
    case 2: return luFactoriseRows<2>(a, order, n);
    case 3: return luFactoriseRows<3>(a, order, n);
    case 4: return luFactoriseRows<4>(a, order, n);
    default: break;
    }
    if constexpr (Lanes<T>::width == 2) switch (luRegistersOf<T>(n)) {
        case 5: return luFactoriseRows<5>(a, order, n);
        case 6: return luFactoriseRows<6>(a, order, n);
        case 7: return luFactoriseRows<7>(a, order, n);
        case 8: return luFactoriseRows<8>(a, order, n);
        default: break;
        }
    return false;
}
template bool luFactorise(Lanes<float>* a, int* order, int n);
template bool luFactorise(Lanes<double>* a, int* order, int n);

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

#define LU_BLOCKS(n, T)                                  \
    template int luFactorise<false>(LuBlock<n, T> & lu); \
    template int luFactorise<false>(LuBlock<n, Lanes<T>> & lu);
#define LU_BLOCKS_OF_TYPE(T) LU_BLOCKS(3, T) LU_BLOCKS(4, T) LU_BLOCKS(5, T) LU_BLOCKS(6, T)

LU_BLOCKS_OF_TYPE(float)
LU_BLOCKS_OF_TYPE(double)

template int luFactorise<true>(LuBlock<5, Lanes<float>>& lu);
template int luFactorise<true>(LuBlock<5, Lanes<double>>& lu);
template int luFactorise<true>(LuBlock<6, Lanes<float>>& lu);

}  // namespace vorm
