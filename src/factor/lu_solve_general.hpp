// Substitution with the factors of an LU decomposition of any order: element by element in the destination, and
// for arrays of orders that are not too high several objects at a time in a buffer.
#pragma once

#include "factor/lu_solve.hpp"

namespace vorm {

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
    const __m128 pairs = _mm_hadd_ps(s[0].v, s[1].v), fours = _mm_hadd_ps(pairs, pairs);
    return _mm_cvtss_f32(_mm_add_ss(fours, _mm_movehdup_ps(fours)));
}
VORM_INLINE double foldEight(const Lanes<double> (&s)[4])
{
    const __m128d fours = _mm_hadd_pd(_mm_hadd_pd(s[0].v, s[1].v), _mm_hadd_pd(s[2].v, s[3].v));
    return _mm_cvtsd_f64(_mm_add_sd(fours, _mm_unpackhi_pd(fours, fours)));
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
VORM_INLINE void luSolveGeneral(const M& matrix, const B& b, const X& dst, int object, int order, const int* pivotIndex)
{
    const auto row = [&](int k) VORM_INLINE_LAMBDA {
        const int physical = pivotAt(pivotIndex, k);
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
    const auto permuted = [&](int k) VORM_INLINE_LAMBDA { return T(b(object, pivotAt(pivotIndex, k))); };

    x(0) = permuted(0);
    for (int i = 1; i < order; ++i) x(i) = permuted(i) - sumOfProducts<T>(row(i), x, 0, i);
    x(order - 1) = T(x(order - 1)) / row(order - 1)(order - 1);
    for (int i = order - 2; i >= 0; --i) {
        const auto rowI = row(i);
        x(i) = (T(x(i)) - sumOfProducts<T>(rowI, x, i + 1, order)) / rowI(i);
    }
}

// Solves with a register of matrices of any order n, in logical row order; x as above, of several registers of
// vectors in turn.
constexpr int luRegisters = 4;
template <int several, class T>
VORM_HIDDEN void luSubstitute(const Lanes<T>* lu, Lanes<T>* x, int n);

template <class X, class T>
VORM_INLINE void storeLanes(const X& dst, int first, const Lanes<T>* x, int n)
{
    constexpr int width = Lanes<T>::width;
    if constexpr (isAdjacent<X>) {
        T* to[width];
        objectsAt(dst, first, to);
        storeRows(to, x, n);
    } else if constexpr (isInPlanes<X>) {
        for (int i = 0; i < n; ++i) x[i].store(dst.element(i) + first);
    } else {
        scatterVectors(dst, first, width, n, reinterpret_cast<const T*>(x));
    }
}

template <class T, class M, class B, class X>
[[gnu::noinline]] void luSolvePairsGeneral(const M& matrix, const B& b, const X& dst, const int* pivotIndex, int n,
                                           int count)
{
    constexpr int width = Lanes<T>::width;
    const auto pivots = [&](int object) VORM_INLINE_LAMBDA { return pivotIndex + std::ptrdiff_t{object} * n; };
    const auto single = [&](int object) { luSolveGeneral<T>(matrix, b, dst, object, n, pivots(object)); };
    if (n > luLanesOrder) {
        for (int object = 0; object < count; ++object) single(object);
        return;
    }
    luEachVector<T>(dst, n, count, single, [&](int first) VORM_INLINE_LAMBDA {
        LuBuffer<T> lu, buffer;
        Lanes<T> x[luLanesOrder];
        const int* const rows = pivots(first);
        if constexpr (!isAdjacent<M>) luLoad(matrix, first, n, buffer);
        for (int k = 0; k < n; ++k) {
            const T* from[width];
            for (int l = 0; l < width; ++l) {
                const int row = pivotAt(rows, l * n + k);
                if constexpr (isAdjacent<M>)
                    from[l] = rowAt(matrix, first + l, row);
                else
                    from[l] = reinterpret_cast<const T*>(buffer + (l * n + row) * luRegistersOf<T>(n));
            }
            loadRows(from, lu + k * n, n);
        }
        for (int k = 0; k < n; ++k)
            x[k] = lanes<T>([&](int l) VORM_INLINE_LAMBDA { return T(b(first + l, pivotAt(rows, l * n + k))); });
        luSubstitute<1>(lu, x, n);
        storeLanes(dst, first, x, n);
    });
}

template <class T, class M, class B, class X>
[[gnu::noinline]] void luSolveVectorsGeneral(const M& matrix, const B& b, const X& dst, const int* pivotIndex, int n,
                                             int count)
{
    constexpr int width = Lanes<T>::width;
    const auto single = [&](int object) { luSolveGeneral<T>(matrix, b, dst, object, n, pivotIndex); };
    if (n > luLanesOrder || count < width) {
        for (int object = 0; object < count; ++object) single(object);
        return;
    }
    LuBuffer<T> lu;
    for (int k = 0; k < n; ++k)
        for (int c = 0; c < n; ++c) lu[k * n + c] = T(matrix(0, pivotAt(pivotIndex, k), c));
    const auto solve = [&](int first, auto several) VORM_INLINE_LAMBDA {
        Lanes<T> natural[luLanesOrder], x[luLanesOrder * several];
        for (int r = 0; r < several; ++r) {
            const int object = first + r * width;
            if constexpr (isAdjacent<B>) {
                const T* from[width];
                for (int l = 0; l < width; ++l) from[l] = b.object(object + l);
                loadRows(from, natural, n);
            } else if constexpr (isInPlanes<B>) {
                for (int i = 0; i < n; ++i) natural[i] = Lanes<T>::load(b.element(i) + object);
            } else {
                gatherVectors(b, object, width, n, reinterpret_cast<T*>(natural));
            }
            for (int k = 0; k < n; ++k) x[k * several + r] = natural[pivotAt(pivotIndex, k)];
        }
        luSubstitute<several>(lu, x, n);
        for (int r = 0; r < several; ++r) {
            for (int i = 0; i < n; ++i) natural[i] = x[i * several + r];
            storeLanes(dst, first + r * width, natural, n);
        }
    };
    const auto apart = [&](int first) VORM_INLINE_LAMBDA {
        if constexpr (isAdjacent<X>)
            for (int r = 0; r < luRegisters; ++r)
                if (!objectsApart(dst, first + r * width, 1, n)) return false;
        return true;
    };
    int done = 0;
    for (; count - done >= luRegisters * width && apart(done); done += luRegisters * width)
        solve(done, std::integral_constant<int, luRegisters>{});
    luEachVector<T>(
        dst, n, count, single, [&](int first) VORM_INLINE_LAMBDA { solve(first, std::integral_constant<int, 1>{}); },
        done);
}

}  // namespace vorm
