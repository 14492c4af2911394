// Substitution with the factors of an LU decomposition of any order: element by element in the destination, and
// for arrays of orders that are not too high several objects at a time in a buffer.
#pragma once

#include "factor/lu/lu_general.hpp"
#include "factor/lu/lu_solve.hpp"

namespace vorm::factor {

// The intermediate vector lives in the destination while b is read in permuted order.
template <class T, class M, class B, class X>
VORM_SHARED void luSolveOne(const M matrix, const B b, const X dst, int object, int order, const int* pivotIndex)
{
    const auto row = [&](int k) VORM_INLINE_LAMBDA {
        const int physical = int{entry(pivotIndex, k)};
        if constexpr (adjacentRows<M> && isAdjacent<X>)
            return AdjacentRow<const T>{rowAt(matrix, object, physical)};
        else
            return [&matrix, object, physical](int c) VORM_INLINE_LAMBDA { return T(matrix(object, physical, c)); };
    };
    const auto x = [&]() VORM_INLINE_LAMBDA {
        if constexpr (adjacentRows<M> && isAdjacent<X>)
            return AdjacentRow<T>{dst.object(object)};
        else
            return [&dst, object](int i) VORM_INLINE_LAMBDA -> decltype(auto) { return dst(object, i); };
    }();
    const auto permuted = [&](int k) VORM_INLINE_LAMBDA { return T(b(object, int{entry(pivotIndex, k)})); };

    x(0) = permuted(0);
    for (int i = 1; i < order; ++i) x(i) = permuted(i) - sumOfProducts<T>(row(i), x, 0, i);
    x(order - 1) = T(x(order - 1)) / row(order - 1)(order - 1);
    for (int i = order - 2; i >= 0; --i) {
        const auto rowI = row(i);
        x(i) = (T(x(i)) - sumOfProducts<T>(rowI, x, i + 1, order)) / rowI(i);
    }
}

// The same code for objects of arrays as for single ones.
template <class T, class M, class B, class X>
VORM_INLINE void luSolveGeneral(const M& matrix, const B& b, const X& dst, int object, int order, const int* pivotIndex)
{
    if constexpr (requires { dst.single(0); })
        luSolveOne<T>(matrix.single(object), b.single(object), dst.single(object), 0, order, pivotIndex);
    else
        luSolveOne<T>(plain(matrix), plain(b), plain(dst), object, order, pivotIndex);
}

// Solves with factors in logical row order; x holds b in logical order before, the solution after.
template <class Factor, class Number>
VORM_HIDDEN void luSubstituteBuffered(const Factor* lu, Number* x, int n);

// Orders up to bufferedOrder run so many registers of objects at once, as every sum waits for its last unknown.
template <class T>
using LuOwnMatrices = Several<Wide<T>, 2>;
template <class L>
using LuOneMatrix = Several<L, 4>;

template <class T, class M, class B, class X>
VORM_SHARED void luSolvePairs(const M& matrix, const B& b, const X& dst, const int* pivotIndex, int n, int count)
{
    const auto buffered = [&]<class Number>(int first) VORM_INLINE_LAMBDA {
        return n <= bufferedOrder && registersApart<Number>(dst, first, 1, n);
    };
    inBlocks<LuOwnMatrices<T>>(count, buffered, [&]<class Number>(int first) VORM_INLINE_LAMBDA {
        const auto pivots = [&](int object) VORM_INLINE_LAMBDA { return pivotIndex + std::ptrdiff_t{object} * n; };
        if constexpr (!inLanes<Number>) {
            luSolveGeneral<T>(matrix, b, dst, first, n, pivots(first));
        } else {
            Number lu[bufferedOrder * bufferedOrder], x[bufferedOrder];
            if constexpr (isAdjacent<M> || isInPlanes<M>) {
                eachRegister<Number>(n, first, [&](int k, int object) VORM_INLINE_LAMBDA {
                    loadPivoted<RegisterIn<Number>>(
                        matrix, b, object, pivots(object),
                        n, [&](int r, int c) VORM_INLINE_LAMBDA -> auto& { return registerOf(lu[r * n + c], k); },
                        [&](int r) VORM_INLINE_LAMBDA -> auto& { return registerOf(x[r], k); });
                });
            } else {
                gatherMatrices(matrix, first, objectsIn<Number>, n, pivots(first), reinterpret_cast<T*>(lu));
                gatherVectors(b, first, objectsIn<Number>, n, pivots(first), reinterpret_cast<T*>(x));
            }
            luSubstituteBuffered(lu, x, n);
            storeVectors(dst, first, x, n);
        }
        return StatusOk;
    });
}

template <class L, class M, class B, class X>
VORM_SHARED void luSolveVectorsIn(const M& matrix, const B& b, const X& dst, const int* pivotIndex, int n, int count)
{
    using T = Element<L>;
    const bool fits = n <= bufferedOrder && count >= narrow<T>;
    L lu[bufferedOrder * bufferedOrder];
    if (fits)
        for (int k = 0; k < n; ++k)
            for (int c = 0; c < n; ++c) lu[k * n + c] = T(matrix(0, entry(pivotIndex, k), c));
    const auto buffered = [&]<class Number>(int first)
                              VORM_INLINE_LAMBDA { return fits && registersApart<Number>(dst, first, 1, n); };
    inBlocks<LuOneMatrix<L>>(count, buffered, [&]<class Number>(int first) VORM_INLINE_LAMBDA {
        if constexpr (!inLanes<Number>) {
            luSolveGeneral<T>(matrix, b, dst, first, n, pivotIndex);
        } else {
            Number natural[bufferedOrder], x[bufferedOrder];
            loadVectors(b, first, natural, n);
            for (int k = 0; k < n; ++k) x[k] = natural[entry(pivotIndex, k)];
            luSubstituteBuffered(static_cast<const L*>(lu), x, n);
            storeVectors(dst, first, x, n);
        }
        return StatusOk;
    });
}
template <class T, class M, class B, class X>
VORM_INLINE void luSolveVectors(const M& matrix, const B& b, const X& dst, const int* pivotIndex, int n, int count)
{
    inRegistersThatPay<Wide<T>>(
        count, [&]<class L>() VORM_INLINE_LAMBDA { luSolveVectorsIn<L>(matrix, b, dst, pivotIndex, n, count); });
}

}  // namespace vorm::factor
