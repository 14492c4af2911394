// LU decomposition with partial pivoting of any order, row by row in the destination.
#pragma once

#include <cstring>
#include <limits>

#include "factor/sums.hpp"
#include "frame/object_lanes.hpp"
#include "frame/overlap.hpp"
#include "vorm/status.h"

namespace vorm::factor {

template <class T>
constexpr T luEpsilon = std::numeric_limits<T>::epsilon();

// row[c] = row[c] - pivotRow[c] * factor for some columns.
template <class T, class Row>
VORM_INLINE void subtractMultiple(const Row& row, const Row& pivotRow, T factor, int from, int order)
{
    for (int c = from; c < order; ++c) row(c) = row(c) - pivotRow(c) * factor;
}
template <class T>
VORM_INLINE void subtractMultiple(const AdjacentRow<T>& row, const AdjacentRow<T>& pivotRow, T factor, int from,
                                  int order)
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
    const auto pivot = [&](int r) VORM_INLINE_LAMBDA -> decltype(auto) { return entry(pivotIndex, r); };
    const auto row = [&](int r) VORM_INLINE_LAMBDA {
        const int physical = pivot(r);
        if constexpr (adjacentRows<Dst>)
            return AdjacentRow<T>{rowAt(dst, object, physical)};
        else
            return [&dst, object, physical](int c)
                       VORM_INLINE_LAMBDA -> decltype(auto) { return dst(object, physical, c); };
    };
    for (int r = 0; r < order; ++r) {
        pivot(r) = r;
        if constexpr (adjacentRows<Src> && adjacentRows<Dst>) {
            const T* const from = rowAt(src, object, r);
            T* const to = rowAt(dst, object, r);
            const auto bytes = std::ptrdiff_t{order} * int{sizeof(T)};
            if (order > 24 && apart(from, to, bytes)) {
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

}  // namespace vorm::factor
