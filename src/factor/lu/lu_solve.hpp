// Substitution with the factors of an LU decomposition, L U x = P b, of the orders 3 to 6: one object, a register of
// objects or two.
#pragma once

#include "factor/right_sides.hpp"
#include "frame/blocks.hpp"
#include "frame/object_rows.hpp"
#include "frame/pin.hpp"

namespace vorm::factor {

// lu(i, j) are factors in logical row order; x holds b in logical order before, the solution after. An unknown is
// subtracted everywhere as soon as it is found. divided(x, i) is x divided by the i-th element of U's diagonal.
// Compilers leave loops over so much code as loops, whose indices would be addresses.
template <int n, class Number, class Factors, class Divided>
VORM_INLINE void luSubstitute(const Factors& lu, Number (&x)[n], const Divided& divided)
{
    unrolled<n>([&](auto j) VORM_INLINE_LAMBDA {
        unrolled<n - 1 - j>([&](auto i) VORM_INLINE_LAMBDA { x[j + 1 + i] = x[j + 1 + i] - lu(j + 1 + i, j) * x[j]; });
    });
    unrolled<n>([&](auto below) VORM_INLINE_LAMBDA {
        constexpr int j = n - 1 - below;
        x[j] = divided(x[j], j);
        unrolled<j>([&](auto i) VORM_INLINE_LAMBDA { x[i] = x[i] - lu(i, j) * x[j]; });
    });
}

// Order 3 in adjacent rows, where a substitution is so little work that its loads are most of it: object by object or
// two by two, as the addresses of all the rows would be more than there are registers for them.
template <class M, class B, class T>
VORM_INLINE void loadThrees(const M& matrix, const B& b, int first, const int* pivotIndex, Lanes<T> (&lu)[3][3],
                            Lanes<T> (&x)[3])
{
    // Row k of object l and its element of b.
    const auto eachRow = [&](auto l, const auto& load) VORM_INLINE_LAMBDA {
        const T *const object = matrix.object(first + l), *const vector = b.object(first + l);
        unrolled<3>([&](auto k) VORM_INLINE_LAMBDA {
            const std::ptrdiff_t row = entry(pivotIndex, l * 3 + k);
            load(k, advance(object, row * matrix.stride1), vector + row);
        });
    };
    if constexpr (std::is_same_v<T, float>) {
        Lanes<float> front[3][2], back[3][2], values[3][2];
        unrolled<2>([&](auto pair) VORM_INLINE_LAMBDA {
            eachRow(constant<2 * pair>, [&](auto k, const float* row, const float* element) VORM_INLINE_LAMBDA {
                front[k][pair] = loadFirst<2>(row), back[k][pair] = loadFirst<2>(row + 1);
                values[k][pair] = loadFirst<1>(element);
            });
            eachRow(constant<2 * pair + 1>, [&](auto k, const float* row, const float* element) VORM_INLINE_LAMBDA {
                front[k][pair] = withPair(front[k][pair], row), back[k][pair] = withPair(back[k][pair], row + 1);
                values[k][pair] = interleaveLow(values[k][pair], loadFirst<1>(element));
            });
        });
        unrolled<3>([&](auto k) VORM_INLINE_LAMBDA {
            lu[k][0] = shuffle<0, 2, 0, 2>(front[k][0], front[k][1]);
            lu[k][1] = shuffle<1, 3, 1, 3>(front[k][0], front[k][1]);
            lu[k][2] = shuffle<1, 3, 1, 3>(back[k][0], back[k][1]);
            x[k] = lowPairs(values[k][0], values[k][1]);
        });
    } else {
        Lanes<double> front[3][2], back[3][2];
        unrolled<2>([&](auto l) VORM_INLINE_LAMBDA {
            eachRow(l, [&](auto k, const double* row, const double* element) VORM_INLINE_LAMBDA {
                front[k][l] = Lanes<double>::load(row);
                back[k][l] = interleaveLow(loadFirst<1>(row + 2), loadFirst<1>(element));
            });
        });
        unrolled<3>([&](auto k) VORM_INLINE_LAMBDA {
            transpose(front[k]), transpose(back[k]);
            lu[k][0] = front[k][0], lu[k][1] = front[k][1], lu[k][2] = back[k][0], x[k] = back[k][1];
        });
    }
}

// The factors of each object in its own logical order, element c of row k to lu(k, c), and its right-hand side to x(k):
// of one register of objects. Rows that do not lie in memory are made in a buffer.
template <class Number, class M, class B, class N, class Lu, class X>
VORM_INLINE void loadPivoted(const M& matrix, const B& b, int first, const int* pivotIndex, N n, const Lu& lu,
                             const X& x)
{
    using T = Element<Number>;
    constexpr int width = Number::width;
    const auto row = [&](int l, int k) VORM_INLINE_LAMBDA { return int{entry(pivotIndex, l * n + k)}; };
    if constexpr (isInPlanes<M> && Number::width == 2 && !std::is_same_v<N, int>) {  // so few are rather gathered
        repeat(n, [&](auto k) VORM_INLINE_LAMBDA {
            const T* const* planes[width];
            for (int l = 0; l < width; ++l) planes[l] = matrix.pp + row(l, k) * std::ptrdiff_t{n};
            const std::ptrdiff_t offset = matrix.shift + first * std::ptrdiff_t{sizeof(T)};
            for (int c = 0; c < n; ++c)
                lu(k, c) = lanes<Number>([&](int l) VORM_INLINE_LAMBDA { return elementAt(planes[l][c] + l, offset); });
            x(k) = lanes<Number>([&](int l) VORM_INLINE_LAMBDA { return T(b(first + l, row(l, k))); });
        });
        return;
    }
    RowBuffer<T> buffer[Number::parts];
    // Of planes the right-hand sides come along with the rows where the last register has room.
    constexpr bool together = isInPlanes<M> && isInPlanes<B> && N{} % narrow<T> != 0;
    const T* objects[width];
    std::ptrdiff_t stride1;
    if constexpr (isAdjacent<M>) {
        objectsAt(matrix, first, objects);
        stride1 = matrix.stride1;
    } else {
        for (int q = 0; q < Number::parts; ++q) {
            const int object = first + q * narrow<T>;
            if constexpr (together)
                loadInRows(matrix, object, n, buffer[q],
                           [&](int r) VORM_INLINE_LAMBDA { return Lanes<T>::load(b.element(r) + object); });
            else
                loadInRows(matrix, object, n, buffer[q]);
        }
        stride1 = registersOf<T>(n) * int{sizeof(Lanes<T>)};
        for (int l = 0; l < width; ++l)
            objects[l] = advance(reinterpret_cast<const T*>(buffer[l / narrow<T>]), l % narrow<T> * n * stride1);
    }
    const T* vectors[width];
    if constexpr (isAdjacent<B>) objectsAt(b, first, vectors);
    repeat(n, [&](auto k) VORM_INLINE_LAMBDA {
        const T* from[width];
        for (int l = 0; l < width; ++l) from[l] = advance(objects[l], row(l, k) * stride1);
        const auto to = [&](int c) VORM_INLINE_LAMBDA -> auto& { return c < n ? lu(k, c) : x(k); };
        if constexpr (together) {
            loadRows(from, to, constant<N{} + 1>);
        } else {
            loadRows(from, to, n);
            x(k) = lanes<Number>([&](int l) VORM_INLINE_LAMBDA {
                if constexpr (isAdjacent<B>)
                    return T(entry(vectors[l], row(l, k)));
                else
                    return T(b(first + l, row(l, k)));
            });
        }
    });
}

// Vectors with their own matrices: true divisions. All of b is read before the first element is written.
template <int n, class Number, class M, class B, class X>
VORM_INLINE VormStatus luSolveObjects(const M& matrix, const B& b, const X& dst, int first, const int* pivotIndex)
{
    Number lu[n][n], x[n];
    if constexpr (n == 3 && sizeof(Element<Number>) == sizeof(float))
        first = opaque(first);  // or the loop keeps more addresses than there are registers
    if constexpr (!inLanes<Number>)
        for (int k = 0; k < n; ++k) {
            const int row = entry(pivotIndex, k);
            for (int c = 0; c < n; ++c) lu[k][c] = matrix(first, row, c);
            x[k] = b(first, row);
        }
    else if constexpr (n == 3 && std::is_same_v<Number, Lanes<Element<Number>>> && isAdjacent<M> && isAdjacent<B>)
        loadThrees(matrix, b, first, pivotIndex, lu, x);
    else
        loadPivoted<Number>(
            matrix, b, first, pivotIndex,
            constant<n>, [&](int k, int c) VORM_INLINE_LAMBDA -> auto& { return lu[k][c]; },
            [&](int k) VORM_INLINE_LAMBDA -> auto& { return x[k]; });
    luSubstitute([&](int i, int j) VORM_INLINE_LAMBDA { return lu[i][j]; }, x,
                 [&](Number value, int i) VORM_INLINE_LAMBDA { return value / lu[i][i]; });
    storeVectors(dst, first, x, constant<n>);
    return StatusOk;
}

// A function of its own, as luArray is.
template <int n, class T, class M, class B, class X>
VORM_SHARED void luSolvePairs(const M matrix, const B b, const X dst, const int* pivotIndex, int count)
{
    // Rows of their own come from an address for each lane: three floats, or four parts, fill wide registers too
    // slowly.
    using Some = UpTo<T, isAdjacent<M> && n == 3 && sizeof(T) == sizeof(float) ? 1 : 2>;
    inBlocks<std::conditional_t<isInPlanes<M> || isAdjacent<M>, Some, T>>(
        dst, 1, n, count, [&]<class Number>(int first) VORM_INLINE_LAMBDA {
            return luSolveObjects<n, Number>(matrix, b, dst, first, pivotIndex + std::ptrdiff_t{first} * n);
        });
}

// All vectors with one matrix: reciprocals of the diagonal, once per call. Single vectors run in lanes
// too, all of them the same. A function of its own, as luArray is.
template <int n, class L, class M, class B, class X>
VORM_SHARED void luSolveVectorsIn(const M matrix, const B b, const X dst, const int* pivotIndex, int count)
{
    using T = Element<L>;
    constexpr bool whole = isAdjacent<B> || isInPlanes<B>;
    L lu[n][n], reciprocals[n];
    int rows[n];
    for (int i = 0; i < n; ++i) {
        rows[i] = entry(pivotIndex, i);
        for (int j = 0; j < n; ++j) lu[i][j] = T(matrix(0, rows[i], j));
        reciprocals[i] = L(T(1)) / lu[i][i];
    }
    // In registers all coefficients would be too many, and the unknowns evicted for them: the compiler is to take
    // these for memory that a store might change.
    const auto inMemory = [](auto& array) VORM_INLINE_LAMBDA -> auto&
    {
        auto* p = &array;
        if constexpr (whole || n == 6) p = opaque(p);
        return *p;
    };
    const auto& coefficients = inMemory(lu);
    const auto& inverses = inMemory(reciprocals);
    const T* planes[n];  // of b in logical order
    if constexpr (isInPlanes<B>)
        for (int k = 0; k < n; ++k) planes[k] = b.element(rows[k]);
    using Widest = std::conditional_t<whole, Several<L, 2>, L>;
    inBlocks<Widest>(dst, 1, n, count, [&]<class Number>(int first) VORM_INLINE_LAMBDA {
        constexpr bool isSingle = !inLanes<Number>;
        using Unknown = std::conditional_t<isSingle, Lanes<T>, Number>;
        using One = RegisterIn<Unknown>;
        Unknown x[n];
        if constexpr (isSingle) {
            for (int k = 0; k < n; ++k) x[k] = T(b(first, rows[k]));
        } else if constexpr (isInPlanes<B>) {
            for (int k = 0; k < n; ++k)
                unrolled<registersIn<Unknown>>([&](auto r) VORM_INLINE_LAMBDA {
                    registerOf(x[k], r) = One::load(planes[k] + first + r * One::width);
                });
        } else {
            Unknown natural[n];
            loadVectors(b, first, natural, constant<n>);
            for (int k = 0; k < n; ++k) x[k] = natural[rows[k]];
        }
        luSubstitute([&](int i, int j) VORM_INLINE_LAMBDA { return narrowed<Unknown>(coefficients[i][j]); }, x,
                     [&](Unknown value, int i) VORM_INLINE_LAMBDA { return value * narrowed<Unknown>(inverses[i]); });
        if constexpr (isSingle)
            for (int i = 0; i < n; ++i) dst(first, i) = firstLane(x[i]);
        else
            storeVectors(dst, first, x, constant<n>);
        return StatusOk;
    });
}

template <int n, class T, class M, class B, class X>
VORM_INLINE void luSolveVectors(const M& matrix, const B& b, const X& dst, const int* pivotIndex, int count)
{
    inRegistersThatPay<WidestOfVectors<n, T, B>>(
        count, [&]<class L>() VORM_INLINE_LAMBDA { luSolveVectorsIn<n, L>(matrix, b, dst, pivotIndex, count); });
}

}  // namespace vorm::factor
