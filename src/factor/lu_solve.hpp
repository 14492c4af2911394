// Substitution with the factors of an LU decomposition, L U x = P b, of the orders 3 to 6: one object or lanes of
// objects at a time.
#pragma once

#include "factor/lu.hpp"

namespace vorm {

// Factors in logical row order; x holds b in logical order before, the solution after. An unknown is subtracted
// everywhere as soon as it is found. divided(x, i) is x divided by the i-th element of U's diagonal.
template <int n, class Number, class Divided>
VORM_INLINE void luSubstitute(const Number (&lu)[n][n], Number (&x)[n], const Divided& divided)
{
    for (int j = 0; j < n - 1; ++j)
        for (int i = j + 1; i < n; ++i) x[i] = x[i] - lu[i][j] * x[j];
    for (int j = n - 1; j >= 0; --j) {
        x[j] = divided(x[j], j);
        for (int i = 0; i < j; ++i) x[i] = x[i] - lu[i][j] * x[j];
    }
}

// A vector with its own matrix: true divisions. All of b is read before the first element is written.
template <int n, class T, class M, class B, class X>
VORM_INLINE void luSolveObject(const M& matrix, const B& b, const X& dst, int object, const int* pivotIndex)
{
    T lu[n][n], x[n];
    for (int k = 0; k < n; ++k) {
        const int row = pivotAt(pivotIndex, k);
        for (int c = 0; c < n; ++c) lu[k][c] = matrix(object, row, c);
        x[k] = b(object, row);
    }
    luSubstitute(lu, x, [&](T value, int i) VORM_INLINE_LAMBDA { return value / lu[i][i]; });
    for (int i = 0; i < n; ++i) dst(object, i) = x[i];
}

template <class X, int n, class T>
VORM_INLINE void storeLanes(const X& dst, int first, const Lanes<T> (&x)[n])
{
    constexpr int width = Lanes<T>::width;
    if constexpr (isAdjacent<X>) {
        T* to[width];
        objectsAt(dst, first, to);
        storeRows(to, x);
    } else if constexpr (isInPlanes<X>) {
        for (int i = 0; i < n; ++i) x[i].store(dst.element(i) + first);
    } else {
        scatterVectors(dst, first, width, n, reinterpret_cast<const T*>(x));
    }
}

// Objects in ascending order, a register of them wherever they share no memory.
template <class T, class X, class Single, class Register>
VORM_INLINE void luEachVector(const X& dst, int n, int count, const Single& single, const Register& lanesFrom,
                              int done = 0)
{
    constexpr int width = Lanes<T>::width;
    while (done < count) {
        bool apart = count - done >= width;
        if constexpr (isAdjacent<X>) apart = apart && objectsApart(dst, done, 1, n);
        if (apart) {
            lanesFrom(done);
            done += width;
        } else {
            for (const int end = done + min(width, count - done); done < end; ++done) single(done);
        }
    }
}

// Order 3, where a substitution is so little work that its loads are most of it: object by object, as the addresses of
// all the rows would be more than there are registers for them.
template <class M, class B, class Load>
VORM_INLINE void eachPivotRow(const M& matrix, const B& b, int first, const int* pivotIndex, const Load& load)
{
    using T = std::remove_const_t<std::remove_pointer_t<decltype(b.object(0))>>;
    unrolled<Lanes<T>::width>([&](auto l) VORM_INLINE_LAMBDA {
        const T* const object = matrix.object(first + l);
        const T* const vector = b.object(first + l);
        unrolled<3>([&](auto k) VORM_INLINE_LAMBDA {
            const std::ptrdiff_t row = pivotAt(pivotIndex, l * 3 + k);
            load(l, k, advance(object, row * matrix.stride1), advance(vector, row * std::ptrdiff_t{sizeof(T)}));
        });
    });
}
template <class M, class B>
VORM_INLINE void loadPivoted(const M& matrix, const B& b, int first, const int* pivotIndex, Lanes<float> (&lu)[3][3],
                             Lanes<float> (&x)[3])
{
    __m128 front[3][2], back[3][2], values[3][2];
    eachPivotRow(matrix, b, first, pivotIndex,
                 [&](auto l, auto k, const float* row, const float* element) VORM_INLINE_LAMBDA {
                     __m128 &low = front[k][l / 2], &high = back[k][l / 2], &value = values[k][l / 2];
                     if constexpr (l % 2 == 0) {
                         low = loadFirst<2>(row).v, high = loadFirst<2>(row + 1).v, value = loadFirst<1>(element).v;
                     } else {
                         low = _mm_loadh_pi(low, reinterpret_cast<const __m64*>(row));
                         high = _mm_loadh_pi(high, reinterpret_cast<const __m64*>(row + 1));
                         value = _mm_unpacklo_ps(value, loadFirst<1>(element).v);
                     }
                 });
    unrolled<3>([&](auto k) VORM_INLINE_LAMBDA {
        lu[k][0] = _mm_shuffle_ps(front[k][0], front[k][1], _MM_SHUFFLE(2, 0, 2, 0));
        lu[k][1] = _mm_shuffle_ps(front[k][0], front[k][1], _MM_SHUFFLE(3, 1, 3, 1));
        lu[k][2] = _mm_shuffle_ps(back[k][0], back[k][1], _MM_SHUFFLE(3, 1, 3, 1));
        x[k] = _mm_movelh_ps(values[k][0], values[k][1]);
    });
}
template <class M, class B>
VORM_INLINE void loadPivoted(const M& matrix, const B& b, int first, const int* pivotIndex, Lanes<double> (&lu)[3][3],
                             Lanes<double> (&x)[3])
{
    __m128d front[3], back[3], values[3];
    eachPivotRow(matrix, b, first, pivotIndex,
                 [&](auto l, auto k, const double* row, const double* element) VORM_INLINE_LAMBDA {
                     if constexpr (l == 0) {
                         front[k] = Lanes<double>::load(row).v;
                         back[k] = loadFirst<1>(row + 2).v, values[k] = loadFirst<1>(element).v;
                     } else {
                         const __m128d next = Lanes<double>::load(row).v;
                         lu[k][0] = _mm_unpacklo_pd(front[k], next), lu[k][1] = _mm_unpackhi_pd(front[k], next);
                         lu[k][2] = _mm_loadh_pd(back[k], row + 2), x[k] = _mm_loadh_pd(values[k], element);
                     }
                 });
}

// A register of objects. Their rows are loaded in logical order; from planes, where those of no two objects lie
// together, floats go through a buffer and doubles are loaded one by one.
template <int n, class T, class M, class B, class X>
VORM_INLINE void luSolveLanes(const M& matrix, const B& b, const X& dst, int first, const int* pivotIndex)
{
    constexpr int width = Lanes<T>::width;
    Lanes<T> lu[n][n], x[n];
    if constexpr (isInPlanes<M> && width == 4) {
        // Through a buffer, object by object in rows of whole registers, the last with b if it has room.
        constexpr int registers = luRegistersOf<T>(n);
        constexpr bool joined = n % width != 0;
        Lanes<T> rows[width][n][registers];
        unrolled<n * registers>([&](auto step) VORM_INLINE_LAMBDA {
            constexpr int r = step / registers, i = step % registers;
            Lanes<T> block[width];
            for (int c = 0; c < width; ++c) {
                const int column = i * width + c;
                block[c] = column < n    ? Lanes<T>::load(matrix.element(r, column) + first)
                           : column == n ? Lanes<T>::load(b.element(r) + first)
                                         : Lanes<T>(T(0));
            }
            transpose(block);
            for (int l = 0; l < width; ++l) rows[l][r][i] = block[l];
        });
        unrolled<n>([&](auto k) VORM_INLINE_LAMBDA {
            const Lanes<T>* own[width];
            for (int l = 0; l < width; ++l) own[l] = rows[l][pivotAt(pivotIndex, l * n + k)];
            for (int i = 0; i < registers; ++i) {
                Lanes<T> block[width];
                for (int l = 0; l < width; ++l) block[l] = own[l][i];
                transpose(block);
                for (int c = 0; c < width; ++c) {
                    const int column = i * width + c;
                    if (column < n) lu[k][column] = block[c];
                    if (column == n) x[k] = block[c];
                }
            }
            if constexpr (!joined)
                x[k] =
                    lanes<T>([&](int l) VORM_INLINE_LAMBDA { return T(b(first + l, pivotAt(pivotIndex, l * n + k))); });
        });
    } else if constexpr (isAdjacent<M> && isAdjacent<B> && n == 3) {
        loadPivoted(matrix, b, first, pivotIndex, lu, x);
    } else {
        unrolled<n>([&](auto k) VORM_INLINE_LAMBDA {
            int row[width];
            for (int l = 0; l < width; ++l) row[l] = pivotAt(pivotIndex, l * n + k);
            if constexpr (isAdjacent<M>) {
                const T* from[width];
                for (int l = 0; l < width; ++l) from[l] = rowAt(matrix, first + l, row[l]);
                loadRows(from, lu[k]);
            } else {
                const T* const* planes[width];
                for (int l = 0; l < width; ++l) planes[l] = matrix.pp + row[l] * std::ptrdiff_t{n};
                const std::ptrdiff_t offset = matrix.shift + first * std::ptrdiff_t{sizeof(T)};
                for (int c = 0; c < n; ++c)
                    lu[k][c] = lanes<T>([&](int l) VORM_INLINE_LAMBDA { return elementAt(planes[l][c] + l, offset); });
            }
            if constexpr (isInPlanes<B>) {
                const std::ptrdiff_t offset = b.shift + first * std::ptrdiff_t{sizeof(T)};
                x[k] = lanes<T>([&](int l) VORM_INLINE_LAMBDA { return elementAt(b.pp[row[l]] + l, offset); });
            } else {
                x[k] = lanes<T>([&](int l) VORM_INLINE_LAMBDA { return T(b(first + l, row[l])); });
            }
        });
    }
    luSubstitute(lu, x, [&](Lanes<T> value, int i) VORM_INLINE_LAMBDA { return value / lu[i][i]; });
    storeLanes(dst, first, x);
}

// A function of its own, as luObjects is.
template <int n, class T, class M, class B, class X>
[[gnu::noinline]] void luSolvePairs(const M matrix, const B b, const X dst, const int* pivotIndex, int count)
{
    const auto pivots = [&](int object) VORM_INLINE_LAMBDA { return pivotIndex + std::ptrdiff_t{object} * n; };
    const auto single = [&](int object)
                            VORM_INLINE_LAMBDA { luSolveObject<n, T>(matrix, b, dst, object, pivots(object)); };
    if constexpr (isInPlanes<M> || isAdjacent<M>)
        luEachVector<T>(dst, n, count, single, [&](int first) VORM_INLINE_LAMBDA {
            luSolveLanes<n, T>(matrix, b, dst, first, pivots(first));
        });
    else
        for (int object = 0; object < count; ++object) single(object);
}

// Two registers of objects: so many operations that wait for each other keep the processor busy only together.
template <class T>
struct LanesPair {
    Lanes<T> first, second;
    friend LanesPair operator-(LanesPair a, LanesPair b) { return {a.first - b.first, a.second - b.second}; }
    friend LanesPair operator*(LanesPair a, Lanes<T> b) { return {a.first * b, a.second * b}; }
    friend LanesPair operator*(Lanes<T> a, LanesPair b) { return {a * b.first, a * b.second}; }
};
// Compilers leave loops over so much code as loops, whose indices would be addresses.
template <int n, class T, class Divided>
VORM_INLINE void luSubstitute(const Lanes<T> (&lu)[n][n], LanesPair<T> (&x)[n], const Divided& divided)
{
    unrolled<n>([&](auto j) VORM_INLINE_LAMBDA {
        unrolled<n - 1 - j>([&](auto i) VORM_INLINE_LAMBDA { x[j + 1 + i] = x[j + 1 + i] - lu[j + 1 + i][j] * x[j]; });
    });
    unrolled<n>([&](auto below) VORM_INLINE_LAMBDA {
        constexpr int j = n - 1 - below;
        x[j] = divided(x[j], j);
        unrolled<j>([&](auto i) VORM_INLINE_LAMBDA { x[i] = x[i] - lu[i][j] * x[j]; });
    });
}

template <class B, int n, class T>
VORM_INLINE void loadLanes(const B& b, int first, Lanes<T> (&x)[n])
{
    constexpr int width = Lanes<T>::width;
    if constexpr (isAdjacent<B>) {
        const T* from[width];
        objectsAt(b, first, from);
        loadRows(from, x);
    } else {
        gatherVectors(b, first, width, n, reinterpret_cast<T*>(x));
    }
}

// All vectors with one matrix: reciprocals of the diagonal, once per call. Single vectors run in lanes
// too, all of them the same. A function of its own, as luObjects is.
template <int n, class T, class M, class B, class X>
[[gnu::noinline]] void luSolveVectors(const M matrix, const B b, const X dst, const int* pivotIndex, int count)
{
    constexpr int width = Lanes<T>::width;
    Lanes<T> lu[n][n], reciprocals[n];
    int rows[n];
    for (int i = 0; i < n; ++i) {
        rows[i] = pivotAt(pivotIndex, i);
        for (int j = 0; j < n; ++j) lu[i][j] = T(matrix(0, rows[i], j));
        reciprocals[i] = Lanes<T>(T(1)) / lu[i][i];
    }
    // In registers all coefficients would be too many, and the unknowns evicted for them: the compiler is to take
    // these for memory that a store might change.
    constexpr bool paired = isAdjacent<B> || isInPlanes<B>;
    const auto inMemory = [](auto& array) VORM_INLINE_LAMBDA -> auto&
    {
        auto* p = &array;
        if constexpr (paired || n == 6) __asm__("" : "+r"(p) : : "memory");
        return *p;
    };
    const auto& coefficients = inMemory(lu);
    const auto& inverses = inMemory(reciprocals);
    const auto divided = [&](auto value, int i) VORM_INLINE_LAMBDA { return value * inverses[i]; };
    const T* planes[n];  // of b in logical order
    if constexpr (isInPlanes<B>)
        for (int k = 0; k < n; ++k) planes[k] = b.element(rows[k]);
    const auto loadPermuted = [&](int first, Lanes<T>(&x)[n]) VORM_INLINE_LAMBDA {
        if constexpr (isInPlanes<B>) {
            for (int k = 0; k < n; ++k) x[k] = Lanes<T>::load(planes[k] + first);
        } else {
            Lanes<T> natural[n];
            loadLanes(b, first, natural);
            for (int k = 0; k < n; ++k) x[k] = natural[rows[k]];
        }
    };
    const auto registers = [&](int first) VORM_INLINE_LAMBDA {
        Lanes<T> x[n];
        loadPermuted(first, x);
        luSubstitute(coefficients, x, divided);
        storeLanes(dst, first, x);
    };
    const auto pairs = [&](int first) VORM_INLINE_LAMBDA {
        Lanes<T> natural[n], next[n];
        LanesPair<T> x[n];
        if constexpr (isInPlanes<B>) {
            for (int k = 0; k < n; ++k)
                x[k] = {Lanes<T>::load(planes[k] + first), Lanes<T>::load(planes[k] + first + width)};
        } else {
            loadLanes(b, first, natural);
            loadLanes(b, first + width, next);
            unrolled<n>([&](auto k) VORM_INLINE_LAMBDA { x[k] = {natural[rows[k]], next[rows[k]]}; });
        }
        luSubstitute(coefficients, x, divided);
        unrolled<n>([&](auto k) VORM_INLINE_LAMBDA { natural[k] = x[k].first, next[k] = x[k].second; });
        storeLanes(dst, first, natural);
        storeLanes(dst, first + width, next);
    };
    const auto apart = [&](int first) VORM_INLINE_LAMBDA {
        if constexpr (isAdjacent<X>) return objectsApart(dst, first, 1, n);
        return true;
    };
    const auto single = [&](int object) VORM_INLINE_LAMBDA {
        Lanes<T> x[n];
        for (int k = 0; k < n; ++k) x[k] = T(b(object, rows[k]));
        luSubstitute(coefficients, x, divided);
        for (int i = 0; i < n; ++i) dst(object, i) = firstLane(x[i]);
    };
    int done = 0;
    if constexpr (paired)
        while (count - done >= 2 * width && apart(done) && apart(done + width)) {
            pairs(done);
            done += 2 * width;
        }
    luEachVector<T>(dst, n, count, single, registers, done);
}

}  // namespace vorm
