// LU decomposition with partial pivoting, P A = L U: one object or lanes of objects at a time for the
// orders 3 to 6, row by row in the destination for all others. The two paths differ on purpose, in
// the threshold, in what they test first and in where they work.
#pragma once

#include <cstring>
#include <utility>

#include "frame/object_lanes.hpp"
#include "vorm/status.h"

namespace vorm {

// Orders 3 to 6. --------------------------------------------------------------------------------------

// A pivot below this is singular: 2^-125 and 2^-1021. Single precision orders the magnitudes as
// double precision would, denormals and NaN included, since widening is exact.
template <class T> constexpr T luTiny = sizeof(T) == sizeof(float) ? T(0x1p-125) : T(0x1p-1021);

// The matrix in logical row order, and the source row each row came from.
template <int n, class Number, class RowNumber> struct LuBlock {
    Number a[n][n];
    RowNumber rows[n];
};

// Row numbers in lanes are bits that are only moved.
template <class T>
VORM_INLINE Lanes<T> rowNumber(int row)
{
    if constexpr (sizeof(T) == sizeof(float))
        return _mm_castsi128_ps(_mm_set1_epi32(row));
    else
        return _mm_castsi128_pd(_mm_set1_epi64x(row));
}
VORM_INLINE int rowIn(float lane)
{
    int row;
    std::memcpy(&row, &lane, sizeof row);
    return row;
}
VORM_INLINE int rowIn(double lane)
{
    long row;
    std::memcpy(&row, &lane, sizeof row);
    return static_cast<int>(row);
}

VORM_INLINE Lanes<float> operator^(Lanes<float> a, Lanes<float> b) { return _mm_xor_ps(a.v, b.v); }
VORM_INLINE Lanes<double> operator^(Lanes<double> a, Lanes<double> b) { return _mm_xor_pd(a.v, b.v); }
VORM_INLINE Lanes<float> operator|(Lanes<float> a, Lanes<float> b) { return _mm_or_ps(a.v, b.v); }
VORM_INLINE Lanes<double> operator|(Lanes<double> a, Lanes<double> b) { return _mm_or_pd(a.v, b.v); }
VORM_INLINE Lanes<float> operator&(LaneMask<float> m, Lanes<float> a) { return _mm_and_ps(m.bits, a.v); }
VORM_INLINE Lanes<double> operator&(LaneMask<double> m, Lanes<double> a) { return _mm_and_pd(m.bits, a.v); }
VORM_INLINE LaneMask<float> without(LaneMask<float> a, LaneMask<float> b) { return {_mm_andnot_ps(b.bits, a.bits)}; }
VORM_INLINE LaneMask<double> without(LaneMask<double> a, LaneMask<double> b) { return {_mm_andnot_pd(b.bits, a.bits)}; }

// Which of the rows below k takes its place: in each lane one of them, or none.
template <class T, int n> struct RowExchange {
    LaneMask<T> with[n];
};

// The element of row k and, as a function, those of the rows below it.
template <int k, class T, int n, class Element>
VORM_INLINE void exchange(const RowExchange<T, n>& rows, const Element& element)
{
    const Lanes<T> top = element(k);
    Lanes<T> changes = top ^ top;
    for (int i = k + 1; i < n; ++i) {
        const Lanes<T> change = rows.with[i] & (top ^ element(i));
        element(i) = element(i) ^ change;
        changes = changes | change;
    }
    element(k) = top ^ changes;
}

// The first of the largest magnitudes in column k moves to row k. Neither does a NaN displace what
// was the largest before it, nor anything a NaN.
template <int k, int n, class T>
VORM_INLINE RowExchange<T, n> pivotToRow(LuBlock<n, Lanes<T>, Lanes<T>>& lu)
{
    RowExchange<T, n> rows;
    Lanes<T> largest = abs(lu.a[k][k]);
    for (int i = k + 1; i < n; ++i) {
        const Lanes<T> magnitude = abs(lu.a[i][k]);
        rows.with[i] = magnitude > largest;
        largest = select(rows.with[i], magnitude, largest);
    }
    LaneMask<T> later = rows.with[n - 1];  // the last one to displace the largest is the pivot
    for (int i = n - 2; i > k; --i) {
        const LaneMask<T> displaced = rows.with[i];
        rows.with[i] = without(displaced, later);
        later = later | displaced;
    }
    unrolled<n>([&](auto c) VORM_INLINE_LAMBDA {
        exchange<k>(rows, [&](int i) VORM_INLINE_LAMBDA -> Lanes<T>& { return lu.a[i][c]; });
    });
    exchange<k>(rows, [&](int i) VORM_INLINE_LAMBDA -> Lanes<T>& { return lu.rows[i]; });
    return rows;
}
template <int k, int n, class T>
VORM_INLINE void pivotToRow(LuBlock<n, T, int>& lu)
{
    int pivot = k;
    for (int i = k + 1; i < n; ++i)
        if (abs(lu.a[i][k]) > abs(lu.a[pivot][k])) pivot = i;
    std::swap(lu.rows[k], lu.rows[pivot]);
    std::swap(lu.a[k], lu.a[pivot]);
}

// Factorises until a pivot is singular, in any lane; done(k) is told when row k has passed. Multipliers
// are products with a reciprocal, only the last one is a quotient.
template <int n, class Number, class RowNumber, class Done>
VORM_INLINE bool luUnrolled(LuBlock<n, Number, RowNumber>& lu, Number tiny, const Done& done)
{
    const auto step = [&](auto k) VORM_INLINE_LAMBDA {
        if constexpr (k < n - 1) pivotToRow<k>(lu);
        if (any(abs(lu.a[k][k]) < tiny)) return false;
        done(k);
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
    return [&]<int... k>(std::integer_sequence<int, k...>) VORM_INLINE_LAMBDA {
        return (... && step(std::integral_constant<int, k>{}));
    }(std::make_integer_sequence<int, n>{});
}

// One object. A row is written when it has become a pivot row, the row numbers in any case.
template <int n, class T, class Src, class Dst>
VORM_INLINE VormStatus luObject(const Src& src, const Dst& dst, int object, int* pivotIndex)
{
    LuBlock<n, T, int> lu;
    for (int r = 0; r < n; ++r) {
        lu.rows[r] = r;
        for (int c = 0; c < n; ++c) lu.a[r][c] = src(object, r, c);
    }
    const bool regular = luUnrolled(lu, luTiny<T>, [&](int k) VORM_INLINE_LAMBDA {
        for (int c = 0; c < n; ++c) dst(object, lu.rows[k], c) = lu.a[k][c];
    });
    for (int r = 0; r < n; ++r) elementAt(pivotIndex, r * int{sizeof(int)}) = lu.rows[r];
    return regular ? StatusOk : StatusSingular;
}

// A register of objects; where any of them is singular nothing has been written.
template <int n, class T, class Src, class Dst>
VORM_INLINE bool luLanes(const Src& src, const Dst& dst, int first, int* pivotIndex)
{
    constexpr int width = Lanes<T>::width;
    LuBlock<n, Lanes<T>, Lanes<T>> lu;
    unrolled<n>([&](auto r) VORM_INLINE_LAMBDA {
        lu.rows[r] = rowNumber<T>(r);
        loadLanes(src, first, lu.a[r], int{r});
    });
    if (!luUnrolled(lu, Lanes<T>(luTiny<T>), [](int) VORM_INLINE_LAMBDA {})) return false;

    T numbers[n][width];
    for (int k = 0; k < n; ++k) lu.rows[k].store(numbers[k]);
    for (int l = 0; l < width; ++l)
        for (int k = 0; k < n; ++k) elementAt(pivotIndex, (l * n + k) * int{sizeof(int)}) = rowIn(numbers[k][l]);
    if constexpr (isAdjacent<Dst>) {
        for (int k = 0; k < n; ++k) {
            T* to[width];
            for (int l = 0; l < width; ++l) to[l] = rowAt(dst, first + l, rowIn(numbers[k][l]));
            storeRows(to, lu.a[k]);
        }
    } else {
        T elements[n][n][width];
        for (int k = 0; k < n; ++k)
            for (int c = 0; c < n; ++c) lu.a[k][c].store(elements[k][c]);
        for (int l = 0; l < width; ++l)
            for (int k = 0; k < n; ++k)
                for (int c = 0; c < n; ++c) dst(first + l, rowIn(numbers[k][l]), c) = elements[k][c][l];
    }
    return true;
}

template <int n, class T, class Src, class Dst>
VORM_INLINE VormStatus luObjects(const Src& src, const Dst& dst, int* pivotIndex, int count)
{
    constexpr int width = Lanes<T>::width;
    for (int done = 0; done < count;) {
        const auto pivots = [&](int object) VORM_INLINE_LAMBDA { return pivotIndex + std::ptrdiff_t{object} * n; };
        bool apart = count - done >= width;
        if constexpr (isAdjacent<Dst>) apart = apart && objectsApart(dst, done, n, n);
        if (apart && luLanes<n, T>(src, dst, done, pivots(done))) {
            done += width;
            continue;
        }
        // In order, so that what comes behind the first singular object stays untouched.
        for (const int end = std::min(done + width, count); done < end; ++done)
            if (const VormStatus status = luObject<n, T>(src, dst, done, pivots(done)); status != StatusOk)
                return status;
    }
    return StatusOk;
}

// All other orders. -----------------------------------------------------------------------------------

template <class T> constexpr T luEpsilon = std::numeric_limits<T>::epsilon();

// row[c] = row[c] - pivotRow[c] * factor for some columns.
template <class T, class Row>
VORM_INLINE void subtractMultiple(const Row& row, const Row& pivotRow, T factor, int from, int order)
{
    for (int c = from; c < order; ++c) row(c) = row(c) - pivotRow(c) * factor;
}
template <class T>
struct AdjacentRow {
    T* p;
    decltype(auto) operator()(int c) const { return elementAt(p, c * std::ptrdiff_t{sizeof(T)}); }
};
template <class T>
VORM_INLINE void subtractMultiple(const AdjacentRow<T>& row, const AdjacentRow<T>& pivotRow, T factor, int from, int order)
{
    constexpr int width = Lanes<T>::width;
    int c = from;
    for (; c + width <= order; c += width)
        (Lanes<T>::load(row.p + c) - Lanes<T>::load(pivotRow.p + c) * Lanes<T>(factor)).store(row.p + c);
    for (; c < order; ++c) row(c) = row(c) - pivotRow(c) * factor;
}

// Works in the destination, whose rows stay where they are: row r of the elimination is pivotIndex[r].
template <class T, class Src, class Dst>
VORM_INLINE VormStatus luGeneral(const Src& src, const Dst& dst, int object, int order, int* pivotIndex)
{
    const auto pivot = [&](int r) VORM_INLINE_LAMBDA -> decltype(auto) {
        return elementAt(pivotIndex, r * std::ptrdiff_t{sizeof(int)});
    };
    const auto row = [&](int r) VORM_INLINE_LAMBDA {
        const int physical = pivot(r);
        if constexpr (adjacentRows<Dst>)
            return AdjacentRow<T>{rowAt(dst, object, physical)};
        else
            return [&dst, object, physical](int c) VORM_INLINE_LAMBDA -> decltype(auto) {
                return dst(object, physical, c);
            };
    };
    for (int r = 0; r < order; ++r) {
        pivot(r) = r;
        if constexpr (adjacentRows<Src> && adjacentRows<Dst>) {
            const T* const from = rowAt(src, object, r);
            T* const to = rowAt(dst, object, r);
            const auto bytes = std::ptrdiff_t{order} * int{sizeof(T)};
            const auto apart = std::abs(reinterpret_cast<const char*>(from) - reinterpret_cast<const char*>(to));
            if (order > 24 && apart >= bytes) {
                std::memcpy(static_cast<void*>(to), from, static_cast<std::size_t>(bytes));
                continue;
            }
        }
        for (int c = 0; c < order; ++c) dst(object, r, c) = src(object, r, c);
    }

    for (int k = 0; k < order - 1; ++k) {
        int p = k;
        T largest = abs(T(row(k)(k)));
        for (int i = k + 1; i < order; ++i)
            if (const T magnitude = abs(T(row(i)(k))); magnitude > largest) largest = magnitude, p = i;
        if (largest <= luEpsilon<T>) return StatusSingular;
        if (p != k) {
            const int taken = pivot(k);
            pivot(k) = pivot(p);
            pivot(p) = taken;
        }
        const auto pivotRow = row(k);
        const T reciprocal = 1 / T(pivotRow(k));
        for (int i = k + 1; i < order; ++i) {
            const auto target = row(i);
            const T factor = T(target(k)) * reciprocal;
            target(k) = factor;
            subtractMultiple(target, pivotRow, factor, k + 1, order);
        }
    }
    return abs(T(row(order - 1)(order - 1))) <= luEpsilon<T> ? StatusSingular : StatusOk;
}

}  // namespace vorm
