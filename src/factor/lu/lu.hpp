// LU decomposition with partial pivoting, P A = L U: one object or lanes of objects at a time for the
// orders 3 to 6, objects step by step in a buffer for others that are not too high, row by row in the destination for
// all others. The paths of small and of other orders differ on purpose, in the threshold, in what they test first and
// in where they work.
#pragma once

#include <cstring>

#include "factor/lu/lu_elimination.hpp"
#include "factor/lu/lu_general.hpp"
#include "frame/blocks.hpp"
#include "frame/object_rows.hpp"
#include "frame/pin.hpp"

namespace vorm::factor {

// luFactoriseHere, compiled once, in lu_blocks.cpp. Only of the orders 3 and 4 the call and the way through memory
// cost more than what the compiler loses in a larger function.
template <bool rowsStay, int n, class Number>
VORM_HIDDEN int luFactorise(LuBlock<n, Number>& lu);

// As many objects of the orders 3 to 6 as a number holds. Of one object the rows that have become pivot rows are
// written, and the row numbers in any case.
template <int n, class Number, class Src, class Dst>
VORM_INLINE VormStatus luObjects(const Src& src, const Dst& dst, int first, int* pivotIndex)
{
    LuBlock<n, Number> lu;
    // Two lanes of even orders are rather stored one by one, where their rows belong.
    constexpr bool rowsStay = isInPlanes<Dst> && (objectsIn < Number >> 2 || n % 2 == 1);
    // Or the loop keeps more addresses than there are registers.
    if constexpr (isInPlanes<Dst> && !rowsStay) first = opaque(first);
    loadMatrices(src, first, lu.a);
    if constexpr (!inLanes<Number>) {
        const int passed = luFactorise<false>(lu);
        std::memcpy(static_cast<void*>(pivotIndex), lu.rows, sizeof lu.rows);
        scatterRows(dst, first, 1, n, passed, pivotIndex, lu.a[0]);
        return passed == n ? StatusOk : StatusSingular;
    } else {
        constexpr bool here = n <= 4 && (isAdjacent<Src> || isInPlanes<Src>);
        if ((here ? luFactoriseHere<rowsStay>(lu) : luFactorise<rowsStay>(lu)) < n) return StatusSingular;
        storeIntegers(lu.rows, pivotIndex);
        if constexpr (rowsStay)
            storeMatrices(dst, first, lu.a);
        else
            storeMatrices(dst, first, lu.a, static_cast<const int*>(pivotIndex));
        return StatusOk;
    }
}

// Factorises a buffer in place, with n row numbers for each object; or finds that one of them is singular.
template <class T>
VORM_HIDDEN bool luFactorise(Lanes<T>* a, int* order, int n);

// A register of objects of other orders.
template <class T, class Src, class Dst>
VORM_SHARED VormStatus luBuffered(const Src& src, const Dst& dst, int first, int n, int* pivotIndex)
{
    RowBuffer<T> a;
    int order[bufferedOrder * narrow<T>];
    loadInRows(src, first, n, a);
    if (!luFactorise(a, order, n)) return StatusSingular;
    storeInRows(dst, first, n, a);
    std::memcpy(static_cast<void*>(pivotIndex), order, std::size_t(n) * narrow<T> * sizeof(int));
    return StatusOk;
}

// Arrays. Each order in a function of its own, with views of its own: in one for all of them most of what the loops
// need would lie in memory.
template <int n, class T, class Src, class Dst>
VORM_SHARED VormStatus luArray(const Src src, const Dst dst, int* pivotIndex, int count)
{
    using Widest = std::conditional_t<isAdjacent<Src> || isInPlanes<Src>, Wide<T>, Lanes<T>>;
    return inBlocks<Widest>(dst, n, n, count, [&]<class Number>(int first) VORM_INLINE_LAMBDA {
        return luObjects<n, Number>(src, dst, first, pivotIndex + std::ptrdiff_t{first} * n);
    });
}
// single(object) does one object.
template <class T, class Src, class Dst, class Single>
VORM_INLINE VormStatus luArray(const Src& src, const Dst& dst, int* pivotIndex, int order, int count,
                               const Single& single)
{
    return inBlocks<Lanes<T>>(
        count,
        [&]<class Number>(int first)
            VORM_INLINE_LAMBDA { return order <= bufferedOrder && registersApart<Number>(dst, first, order, order); },
        [&]<class Number>(int first) VORM_INLINE_LAMBDA {
            if constexpr (!inLanes<Number>)
                return single(first);
            else
                return luBuffered<T>(src, dst, first, order, pivotIndex + std::ptrdiff_t{first} * order);
        });
}

}  // namespace vorm::factor
