// Elimination and substitution of the orders 3 to 6, one object or a register of objects at a time:
// each body once for all layouts.

#include "factor/lu.hpp"
#include "factor/lu_solve.hpp"

namespace vorm {
namespace {

// A pivot below this is singular: 2^-125 and 2^-1021. Single precision orders the magnitudes as
// double precision would, denormals and NaN included, since widening is exact.
template <class T>
constexpr T tiny = sizeof(T) == sizeof(float) ? T(0x1p-125) : T(0x1p-1021);
template <class T>
T tinyFor(T)
{
    return tiny<T>;
}
template <class T>
Lanes<T> tinyFor(Lanes<T>)
{
    return tiny<T>;
}

void number(int& row, int r) { row = r; }
void number(Lanes<float>& row, int r) { row = _mm_castsi128_ps(_mm_set1_epi32(r)); }
void number(Lanes<double>& row, int r) { row = _mm_castsi128_pd(_mm_set1_epi64x(r)); }

__m128 both(__m128 a, __m128 b) { return _mm_and_ps(a, b); }
__m128d both(__m128d a, __m128d b) { return _mm_and_pd(a, b); }
__m128 either(__m128 a, __m128 b) { return _mm_or_ps(a, b); }
__m128d either(__m128d a, __m128d b) { return _mm_or_pd(a, b); }
__m128 without(__m128 a, __m128 b) { return _mm_andnot_ps(b, a); }
__m128d without(__m128d a, __m128d b) { return _mm_andnot_pd(b, a); }

__m128 sameBits(__m128 a, __m128 b)
{
    return _mm_castsi128_ps(_mm_cmpeq_epi32(_mm_castps_si128(a), _mm_castps_si128(b)));
}
__m128d sameBits(__m128d a, __m128d b)  // of the lower halves, where row numbers are
{
    const __m128i same = _mm_cmpeq_epi32(_mm_castpd_si128(a), _mm_castpd_si128(b));
    return _mm_castsi128_pd(_mm_shuffle_epi32(same, _MM_SHUFFLE(2, 2, 0, 0)));
}

// larger, or what was the largest unless it is less: a NaN displaces nothing, and nothing displaces it.
__m128 largerOf(Lanes<float> magnitude, Lanes<float> largest) { return _mm_max_ps(magnitude.v, largest.v); }
__m128d largerOf(Lanes<double> magnitude, Lanes<double> largest) { return _mm_max_pd(magnitude.v, largest.v); }

// The rows of one column, rows[0] to rows[n - 1], by a function. Row k and the one whose mask is set
// in a lane change places there.
template <int k, int n, class Mask, class Row>
VORM_INLINE void exchange(const Mask (&displaces)[n], Mask stays, const Row& row)
{
    const Mask top = row(k).v;
    Mask pivot = both(stays, top);
    for (int i = k + 1; i < n; ++i) {
        const Mask mine = row(i).v;
        pivot = either(pivot, both(displaces[i], mine));
        row(i) = either(both(displaces[i], top), without(mine, displaces[i]));
    }
    row(k) = pivot;
}

// The first of the largest magnitudes in column k moves to row k.
template <int k, int n, class T>
VORM_INLINE void pivotToRow(LuBlock<n, Lanes<T>>& lu)
{
    using Mask = decltype(LaneMask<T>::bits);
    Mask displaces[n];
    Lanes<T> largest = abs(lu.a[k][k]);
    for (int i = k + 1; i < n; ++i) {
        const Lanes<T> magnitude = abs(lu.a[i][k]);
        displaces[i] = (magnitude > largest).bits;
        largest = largerOf(magnitude, largest);
    }
    Mask taken = displaces[n - 1];  // the last one to displace the largest is the pivot
    for (int i = n - 2; i > k; --i) {
        const Mask own = displaces[i];
        displaces[i] = without(own, taken);
        taken = either(taken, own);
    }
    const Mask all = (Lanes<T>(T(0)) == Lanes<T>(T(0))).bits, stays = without(all, taken);
    unrolled<n>([&](auto c) VORM_INLINE_LAMBDA {
        exchange<k>(displaces, stays, [&](int i) VORM_INLINE_LAMBDA -> Lanes<T>& { return lu.a[i][c]; });
    });
    exchange<k>(displaces, stays, [&](int i) VORM_INLINE_LAMBDA -> Lanes<T>& { return lu.rows[i]; });
}
template <int k, int n, class T>
VORM_INLINE void pivotToRow(LuBlock<n, T>& lu)
{
    int pivot = k;
    for (int i = k + 1; i < n; ++i)
        if (abs(lu.a[i][k]) > abs(lu.a[pivot][k])) pivot = i;
    if (pivot == k) return;
    std::swap(lu.rows[k], lu.rows[pivot]);
    std::swap(lu.a[k], lu.a[pivot]);
}

}  // namespace

template <int n, class Number>
int luFactorise(LuBlock<n, Number>& lu)
{
    for (int r = 0; r < n; ++r) number(lu.rows[r], r);
    int passed = 0;
    // Multipliers are products with a reciprocal, only the last one is a quotient.
    const auto step = [&](auto k) VORM_INLINE_LAMBDA {
        if constexpr (k < n - 1) pivotToRow<k>(lu);
        if (any(abs(lu.a[k][k]) < tinyFor(lu.a[k][k]))) return false;
        ++passed;
        if constexpr (k < n - 2) {
            const Number reciprocal = Number(1) / lu.a[k][k];
            for (int i = k + 1; i < n; ++i) lu.a[i][k] = lu.a[i][k] * reciprocal;
        } else if constexpr (k == n - 2) {
            lu.a[n - 1][k] = lu.a[n - 1][k] / lu.a[k][k];
        }
        for (int i = k + 1; i < n; ++i)
            for (int j = k + 1; j < n; ++j) lu.a[i][j] = lu.a[i][j] - lu.a[k][j] * lu.a[i][k];
        return true;
    };
    [&]<int... k>(std::integer_sequence<int, k...>) VORM_INLINE_LAMBDA
    {
        (void)(... && step(std::integral_constant<int, k>{}));
    }
    (std::make_integer_sequence<int, n>{});
    return passed;
}

template <int n, class Number>
void luSubstitute(LuSystem<n, Number>& system)
{
    luSubstituteBy(system, [&](Number x, int i) VORM_INLINE_LAMBDA { return x / system.lu[i][i]; });
}

// Row k of the logical order is row r of the source in the lanes of is[k][r].
template <int n, class T>
struct RowOrder {
    decltype(LaneMask<T>::bits) is[n][n];

    explicit RowOrder(const Lanes<T> (&rows)[n])
    {
        for (int r = 0; r < n; ++r) {
            Lanes<T> wanted;
            number(wanted, r);
            for (int k = 0; k < n; ++k) is[k][r] = sameBits(rows[k].v, wanted.v);
        }
    }
    // Row k out of rows in source order, and row r out of rows in logical order.
    VORM_INLINE Lanes<T> logical(int k, const Lanes<T>* rows, int step = 1) const
    {
        auto found = both(is[k][0], rows[0].v);
        for (int r = 1; r < n; ++r) found = either(found, both(is[k][r], rows[r * step].v));
        return found;
    }
    VORM_INLINE Lanes<T> source(int r, const Lanes<T>* rows) const
    {
        auto found = both(is[0][r], rows[0].v);
        for (int k = 1; k < n; ++k) found = either(found, both(is[k][r], rows[k].v));
        return found;
    }
};

template <int n, class T>
void luToSourceOrder(LuBlock<n, Lanes<T>>& lu)
{
    const RowOrder<n, T> order(lu.rows);
    for (int c = 0; c < n; ++c) {
        Lanes<T> column[n];
        for (int k = 0; k < n; ++k) column[k] = lu.a[k][c];
        for (int r = 0; r < n; ++r) lu.a[r][c] = order.source(r, column);
    }
}

// Column by column: an unknown is taken from the lanes' rows, then its terms are subtracted in all rows,
// also where the row's own unknown is known already and nothing reads it any more.
template <int n, class T>
void luSubstituteInSourceOrder(LuSystem<n, Lanes<T>>& system, const Lanes<T> (&rows)[n])
{
    const RowOrder<n, T> order(rows);
    auto& [lu, x] = system;
    Lanes<T> y[n], rest[n];
    for (int k = 0; k < n; ++k) {
        y[k] = order.logical(k, x);
        for (int r = 0; r < n; ++r) x[r] = x[r] - lu[r][k] * y[k];
    }
    for (int r = 0; r < n; ++r) rest[r] = order.source(r, y);
    for (int k = n - 1; k >= 0; --k) {
        x[k] = order.logical(k, rest) / order.logical(k, &lu[0][k], n);
        for (int r = 0; r < n; ++r) rest[r] = rest[r] - lu[r][k] * x[k];
    }
}

#define LU_BLOCKS(n, T)                                        \
    template int luFactorise(LuBlock<n, T>& lu);               \
    template int luFactorise(LuBlock<n, Lanes<T>>& lu);        \
    template void luToSourceOrder(LuBlock<n, Lanes<T>>& lu);   \
    template void luSubstitute(LuSystem<n, T>& system);        \
    template void luSubstitute(LuSystem<n, Lanes<T>>& system); \
    template void luSubstituteInSourceOrder(LuSystem<n, Lanes<T>>& system, const Lanes<T>(&rows)[n]);
#define LU_BLOCKS_OF_TYPE(T) LU_BLOCKS(3, T) LU_BLOCKS(4, T) LU_BLOCKS(5, T) LU_BLOCKS(6, T)

LU_BLOCKS_OF_TYPE(float)
LU_BLOCKS_OF_TYPE(double)

}  // namespace vorm
