// Substitution with the factors of an LU decomposition of any order: element by element in the destination, and
// for arrays of orders that are not too high several objects at a time in a buffer.
#pragma once

#include "factor/lu_general.hpp"
#include "factor/lu_solve.hpp"

namespace vorm::factor {

// The sum of row(j) x(j) for j from first to end - 1, from zero. Groups of eight terms go to eight sums,
// folded as ((s0 + s1) + (s2 + s3)) + ((s4 + s5) + (s6 + s7)); the terms left over follow one by one.
template <class T, class Row, class X>
VORM_INLINE T sumOfProducts(const Row& row, const X& x, int first, int end)
{
    T total = 0;
    int j = first;
    if (end - first >= 8) {
        T s[8] = {};
        for (; end - j >= 8; j += 8)
            for (int l = 0; l < 8; ++l) s[l] = s[l] + T(row(j + l)) * T(x(j + l));
        total = ((s[0] + s[1]) + (s[2] + s[3])) + ((s[4] + s[5]) + (s[6] + s[7]));
    }
    for (; j < end; ++j) total = total + T(row(j)) * T(x(j));
    return total;
}
VORM_INLINE float foldEight(const Lanes<float> (&s)[2])
{
    const Lanes<float> pairs = pairSums(s[0], s[1]), fours = pairSums(pairs, pairs);
    return lane<0>(fours) + lane<1>(fours);
}
VORM_INLINE double foldEight(const Lanes<double> (&s)[4])
{
    const Lanes<double> fours = pairSums(pairSums(s[0], s[1]), pairSums(s[2], s[3]));
    return lane<0>(fours) + lane<1>(fours);
}
template <class T>
VORM_INLINE T sumOfProducts(const AdjacentRow<const T>& row, const AdjacentRow<T>& x, int first, int end)
{
    constexpr int width = Lanes<T>::width, registers = 8 / width;
    T total = 0;
    int j = first;
    if (end - first >= 8) {
        Lanes<T> s[registers];
        for (Lanes<T>& sum : s) sum = T(0);
        for (; end - j >= 8; j += 8)
            for (int r = 0; r < registers; ++r)
                s[r] = s[r] + Lanes<T>::load(row.p + j + r * width) * Lanes<T>::load(x.p + j + r * width);
        total = foldEight(s);
    }
    for (; j < end; ++j) total = total + T(row(j)) * T(x(j));
    return total;
}

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
    if constexpr (Wide<T>::parts > 1)
        if (count >= manyVectors<T>) return luSolveVectorsIn<Wide<T>>(matrix, b, dst, pivotIndex, n, count);
    luSolveVectorsIn<Lanes<T>>(matrix, b, dst, pivotIndex, n, count);
}

}  // namespace vorm::factor
