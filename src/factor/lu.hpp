// LU decomposition with partial pivoting, P A = L U: one object or lanes of objects at a time for the
// orders 3 to 6, row by row in the destination for all others. The two paths differ on purpose, in
// the threshold, in what they test first and in where they work.
#pragma once

#include <cstring>
#include <limits>
#include <type_traits>

#include "factor/lu_elimination.hpp"
#include "frame/object_lanes.hpp"
#include "vorm/status.h"

namespace vorm {

VORM_INLINE int pivotAt(const int* pivotIndex, std::ptrdiff_t k)
{
    return elementAt(pivotIndex, k * std::ptrdiff_t{sizeof(int)});
}

// Orders 3 to 6. --------------------------------------------------------------------------------------

// luFactoriseHere, compiled once, in lu_blocks.cpp. Only of the orders 3 and 4 the call and the way through memory
// cost more than what the compiler loses in a larger function.
template <bool rowsStay, int n, class Number>
VORM_HIDDEN int luFactorise(LuBlock<n, Number>& lu);

// Row numbers in lanes, those of a register of objects.
template <int n>
VORM_INLINE void storeRowNumbers(const Lanes<float> (&rows)[n], int* pivotIndex)
{
    auto* const p = reinterpret_cast<float*>(pivotIndex);
    storeRows({p, p + n, p + 2 * n, p + 3 * n}, rows);
}
template <int n>
VORM_INLINE void storeRowNumbers(const Lanes<double> (&rows)[n], int* pivotIndex)
{
    for (int k = 0; k < n; ++k)
        for (int l = 0; l < 2; ++l) {
            const __m128i lane = _mm_castpd_si128(l ? _mm_unpackhi_pd(rows[k].v, rows[k].v) : rows[k].v);
            elementAt(pivotIndex, (l * n + k) * int{sizeof(int)}) = _mm_cvtsi128_si32(lane);
        }
}

// Rows anywhere, of one object or of a block of them, object by object and in the order of the pivots.
template <class T, class View>
[[gnu::noinline]] void scatterPivotRows(const View& dst, int first, int objects, int n, int passed,
                                        const int* pivotIndex, const T* from)
{
    for (int l = 0; l < objects; ++l)
        for (int k = 0; k < passed; ++k)
            for (int c = 0; c < n; ++c)
                dst(first + l, pivotAt(pivotIndex, l * n + k), c) = from[(k * n + c) * objects + l];
}

// One object. A row is written if it has become a pivot row, the row numbers in any case.
template <int n, class T, class Src, class Dst>
VORM_INLINE VormStatus luObject(const Src& src, const Dst& dst, int object, int* pivotIndex)
{
    LuBlock<n, T> lu;
    gatherMatrices(src, object, 1, n, lu.a[0]);
    const int passed = luFactorise<false>(lu);
    std::memcpy(static_cast<void*>(pivotIndex), lu.rows, sizeof lu.rows);
    scatterPivotRows(dst, object, 1, n, passed, pivotIndex, lu.a[0]);
    return passed == n ? StatusOk : StatusSingular;
}

// A register of objects; where any of them is singular nothing has been written.
template <int n, class T, class Src, class Dst>
VORM_INLINE bool luLanes(const Src& src, const Dst& dst, int first, int* pivotIndex)
{
    constexpr int width = Lanes<T>::width;
    // Two lanes of even orders are rather stored one by one, where their rows belong.
    constexpr bool rowsStay = isInPlanes<Dst> && (width == 4 || n % 2 == 1);
    LuBlock<n, Lanes<T>> lu;
    if constexpr (isAdjacent<Src>) {
        unrolled<n>([&](auto r) VORM_INLINE_LAMBDA {
            const T* from[width];
            for (int l = 0; l < width; ++l) from[l] = rowAt(src, first + l, r);
            loadRows(from, lu.a[r]);
        });
    } else if constexpr (isInPlanes<Src>) {
        unrolled<n>([&](auto r) VORM_INLINE_LAMBDA {
            for (int c = 0; c < n; ++c) lu.a[r][c] = Lanes<T>::load(src.element(r, c) + first);
        });
    } else {
        gatherMatrices(src, first, width, n, reinterpret_cast<T*>(lu.a));
    }
    if ((n <= 4 && (isAdjacent<Src> || isInPlanes<Src>) ? luFactoriseHere<rowsStay>(lu) : luFactorise<rowsStay>(lu)) <
        n)
        return false;

    storeRowNumbers(lu.rows, pivotIndex);
    if constexpr (isAdjacent<Dst>) {
        unrolled<n>([&](auto k) VORM_INLINE_LAMBDA {
            T* to[width];
            for (int l = 0; l < width; ++l) to[l] = rowAt(dst, first + l, pivotAt(pivotIndex, l * n + k));
            storeRows(to, lu.a[k]);
        });
    } else if constexpr (rowsStay) {
        unrolled<n>([&](auto r) VORM_INLINE_LAMBDA {
            for (int c = 0; c < n; ++c) lu.a[r][c].store(dst.element(r, c) + first);
        });
    } else if constexpr (isInPlanes<Dst>) {
        const std::ptrdiff_t offset = dst.shift + first * std::ptrdiff_t{sizeof(T)};
        unrolled<n>([&](auto k) VORM_INLINE_LAMBDA {
            unrolled<width>([&](auto l) VORM_INLINE_LAMBDA {
                T* const* const planes = dst.pp + pivotAt(pivotIndex, l * n + k) * std::ptrdiff_t{n};
                for (int c = 0; c < n; ++c) elementAt(planes[c] + l, offset) = lane<l>(lu.a[k][c]);
            });
        });
    } else {
        scatterPivotRows(dst, first, width, n, n, pivotIndex, reinterpret_cast<const T*>(lu.a));
    }
    return true;
}

// An array, in order: what comes behind the first singular object stays untouched.
template <class T, class Dst, class Block, class Single>
VORM_INLINE VormStatus luArray(const Dst& dst, int order, int count, const Block& block, const Single& single)
{
    constexpr int width = Lanes<T>::width;
    for (int done = 0; done < count;) {
        bool inLanes = count - done >= width;
        if constexpr (isAdjacent<Dst>) inLanes = inLanes && objectsApart(dst, done, order, order);
        if (inLanes && block(done)) {
            done += width;
            continue;
        }
        for (const int end = done + min(width, count - done); done < end; ++done)
            if (const VormStatus status = single(done); status != StatusOk) return status;
    }
    return StatusOk;
}
// Each order in a function of its own, with views of its own: in one for all of them most of what the loops need would
// lie in memory.
template <int n, class T, class Src, class Dst>
[[gnu::noinline]] VormStatus luObjects(const Src src, const Dst dst, int* pivotIndex, int count)
{
    const auto pivots = [&](int object) VORM_INLINE_LAMBDA { return pivotIndex + std::ptrdiff_t{object} * n; };
    return luArray<T>(
        dst, n, count, [&](int first) VORM_INLINE_LAMBDA { return luLanes<n, T>(src, dst, first, pivots(first)); },
        [&](int object) VORM_INLINE_LAMBDA { return luObject<n, T>(src, dst, object, pivots(object)); });
}

// All other orders. -----------------------------------------------------------------------------------

template <class T>
constexpr T luEpsilon = std::numeric_limits<T>::epsilon();

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
    const auto pivot = [&](int r) VORM_INLINE_LAMBDA -> decltype(auto) {
        return elementAt(pivotIndex, r * std::ptrdiff_t{sizeof(int)});
    };
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
            const auto apart = reinterpret_cast<const char*>(from) - reinterpret_cast<const char*>(to);
            if (order > 24 && (apart >= bytes || -apart >= bytes)) {
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

// Arrays of orders up to this run several objects at a time, as many as a register has lanes, in a buffer: object by
// object, in rows of whole registers.
constexpr int luLanesOrder = 16;
template <class T>
constexpr int luRegistersOf(int n)
{
    return (n + Lanes<T>::width - 1) / Lanes<T>::width;
}
template <class T>
using LuBuffer = Lanes<T>[luLanesOrder * luLanesOrder];

template <class T, class Src>
VORM_INLINE void luLoad(const Src& src, int first, int n, Lanes<T>* to)
{
    constexpr int width = Lanes<T>::width;
    const int registers = luRegistersOf<T>(n), whole = n / width, rest = n % width;
    if constexpr (isAdjacent<Src>) {
        for (int l = 0; l < width; ++l)
            for (int r = 0; r < n; ++r, to += registers) {
                const T* const from = rowAt(src, first + l, r);
                for (int i = 0; i < whole; ++i) to[i] = Lanes<T>::load(from + i * width);
                if (rest > 0) to[whole] = loadFirst(from + whole * width, rest);
            }
    } else if constexpr (isInPlanes<Src>) {
        for (int r = 0; r < n; ++r)
            for (int i = 0; i < registers; ++i) {
                Lanes<T> block[width];
                for (int c = 0; c < width; ++c)
                    block[c] = i < whole || c < rest ? Lanes<T>::load(src.element(r, i * width + c) + first) : T(0);
                transpose(block);
                for (int l = 0; l < width; ++l) to[(l * n + r) * registers + i] = block[l];
            }
    } else {
        auto* const elements = reinterpret_cast<T*>(to);
        for (int l = 0; l < width; ++l)
            for (int r = 0; r < n; ++r)
                for (int c = 0; c < registers * width; ++c)
                    elements[(l * n + r) * registers * width + c] = c < n ? T(src(first + l, r, c)) : 0;
    }
}
template <class T, class Dst>
VORM_INLINE void luStore(const Dst& dst, int first, int n, const Lanes<T>* from)
{
    constexpr int width = Lanes<T>::width;
    const int registers = luRegistersOf<T>(n), whole = n / width, rest = n % width;
    if constexpr (isAdjacent<Dst>) {
        for (int l = 0; l < width; ++l)
            for (int r = 0; r < n; ++r, from += registers) {
                T* const to = rowAt(dst, first + l, r);
                for (int i = 0; i < whole; ++i) from[i].store(to + i * width);
                if (rest > 0) storeFirst(to + whole * width, from[whole], rest);
            }
    } else if constexpr (isInPlanes<Dst>) {
        for (int r = 0; r < n; ++r)
            for (int i = 0; i < registers; ++i) {
                Lanes<T> block[width];
                for (int l = 0; l < width; ++l) block[l] = from[(l * n + r) * registers + i];
                transpose(block);
                for (int c = 0; c < width; ++c)
                    if (i < whole || c < rest) block[c].store(dst.element(r, i * width + c) + first);
            }
    } else {
        const auto* const elements = reinterpret_cast<const T*>(from);
        for (int l = 0; l < width; ++l)
            for (int r = 0; r < n; ++r)
                for (int c = 0; c < n; ++c) dst(first + l, r, c) = elements[(l * n + r) * registers * width + c];
    }
}

// Factorises a buffer in place, with n row numbers for each object; or finds that one of them is singular.
template <class T>
VORM_HIDDEN bool luFactorise(Lanes<T>* a, int* order, int n);

template <class T, class Src, class Dst>
[[gnu::noinline]] bool luLanesGeneral(const Src& src, const Dst& dst, int first, int n, int* pivotIndex)
{
    LuBuffer<T> a;
    int order[luLanesOrder * Lanes<T>::width];
    luLoad(src, first, n, a);
    if (!luFactorise(a, order, n)) return false;
    luStore(dst, first, n, a);
    std::memcpy(static_cast<void*>(pivotIndex), order, std::size_t(n) * Lanes<T>::width * sizeof(int));
    return true;
}

}  // namespace vorm
