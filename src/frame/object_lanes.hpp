// Lanes of objects: the same element of as many consecutive objects as a register has lanes, one
// object in each lane. Loads and stores for every layout; nothing but the elements is touched.
//
// Adjacent rows are turned in registers, a part of 128 bits at a time; planes are loaded as they lie; elements
// anywhere else are gathered one by one. n is a number of the program's run, or an std::integral_constant.
#pragma once

#include <type_traits>

#include "frame/planes.hpp"
#include "frame/shuffles.hpp"
#include "frame/small_vector.hpp"

namespace vorm {

// The addresses of consecutive objects.
template <class View, class T, int objects>
VORM_INLINE void objectsAt(const View& view, int first, T* (&to)[objects])
{
    if constexpr (requires { view.stride0; })
        for (int l = 0; l < objects; ++l) to[l] = advance(view.object(first), std::ptrdiff_t{l} * view.stride0);
    else
        for (int l = 0; l < objects; ++l) to[l] = view.object(first + l);
}
template <class View>
VORM_INLINE auto* rowAt(const View& view, int object, std::ptrdiff_t row)
{
    return advance(view.object(object), row * view.stride1);
}

// n elements from each of several addresses, one address for each lane, to to(0), to(1), ...; and back. -----------

template <class T, int W, class To, class N>
VORM_INLINE void loadRows(const T* const (&from)[W], const To& to, N n)
{
    using L = Lanes<T, W>;
    constexpr int some = narrow<T>;  // elements of a part
    const auto parts = [&](auto load) VORM_INLINE_LAMBDA {
        return joined<L>([&](int q) VORM_INLINE_LAMBDA { return load(&from[some * q]); });
    };
    int c = 0;
    for (; c + some <= n; c += some) {
        L block[some];
        for (int l = 0; l < some; ++l)
            block[l] = parts([&](auto* at) VORM_INLINE_LAMBDA { return Lanes<T>::load(at[l] + c); });
        transpose(block);
        for (int i = 0; i < some; ++i) to(c + i) = block[i];
    }
    if constexpr (some == 4)
        if (c + 2 <= n) {
            const L ab = parts([&](auto* at) VORM_INLINE_LAMBDA { return loadPairs(at[0] + c, at[1] + c); });
            const L cd = parts([&](auto* at) VORM_INLINE_LAMBDA { return loadPairs(at[2] + c, at[3] + c); });
            to(c) = shuffle<0, 2, 0, 2>(ab, cd);
            to(c + 1) = shuffle<1, 3, 1, 3>(ab, cd);
            c += 2;
        }
    if (c < n) to(c) = lanes<L>([&](int l) VORM_INLINE_LAMBDA { return elementAt(from[l] + c, 0); });
}

template <class T, int W, class From, class N>
VORM_INLINE void storeRows(T* const (&to)[W], const From& from, N n)
{
    using L = Lanes<T, W>;
    constexpr int some = narrow<T>;
    int c = 0;
    for (; c + some <= n; c += some) {
        L block[some];
        for (int i = 0; i < some; ++i) block[i] = from(c + i);
        transpose(block);
        for (int l = 0; l < some; ++l)
            eachPart(block[l], [&](int q, Lanes<T> part) VORM_INLINE_LAMBDA { part.store(to[some * q + l] + c); });
    }
    if constexpr (some == 4)
        if (c + 2 <= n) {
            const auto store = [&](L pairs, int l) VORM_INLINE_LAMBDA {
                eachPart(pairs, [&](int q, Lanes<T> part) VORM_INLINE_LAMBDA {
                    storePairs(to[some * q + l] + c, to[some * q + l + 1] + c, part);
                });
            };
            store(interleaveLow(L(from(c)), L(from(c + 1))), 0);
            store(interleaveHigh(L(from(c)), L(from(c + 1))), 2);
            c += 2;
        }
    if (c < n) unrolled<W>([&](auto l) VORM_INLINE_LAMBDA { elementAt(to[l] + c, 0) = lane<l>(L(from(c))); });
}

// Elements anywhere, of one object or of a block of them: element (r, c) of object l lies at
// [r][c][l] of the block. The loops stay loops, so that one piece of code serves all sizes. ----------------

template <class T, class View>
[[gnu::noinline]] void gatherVectors(const View& view, int first, int objects, int n, T* to)
{
    for (int l = 0; l < objects; ++l)
        for (int i = 0; i < n; ++i) to[i * objects + l] = view(first + l, i);
}
template <class T, class View>
[[gnu::noinline]] void gatherMatrices(const View& view, int first, int objects, int n, T* to)
{
    for (int l = 0; l < objects; ++l)
        for (int r = 0; r < n; ++r)
            for (int c = 0; c < n; ++c) to[(r * n + c) * objects + l] = view(first + l, r, c);
}
template <class T, class View>
[[gnu::noinline]] void scatterVectors(const View& view, int first, int objects, int n, const T* from)
{
    for (int l = 0; l < objects; ++l)
        for (int i = 0; i < n; ++i) view(first + l, i) = from[i * objects + l];
}
// Row r of object l is row rows[l * n + r] of the matrix; the same of vectors.
template <class T, class View>
[[gnu::noinline]] void gatherVectors(const View& view, int first, int objects, int n, const int* rows, T* to)
{
    for (int l = 0; l < objects; ++l)
        for (int i = 0; i < n; ++i) to[i * objects + l] = view(first + l, entry(rows, l * n + i));
}
template <class T, class View>
[[gnu::noinline]] void gatherMatrices(const View& view, int first, int objects, int n, const int* rows, T* to)
{
    for (int l = 0; l < objects; ++l)
        for (int r = 0; r < n; ++r)
            for (int c = 0; c < n; ++c) to[(r * n + c) * objects + l] = view(first + l, entry(rows, l * n + r), c);
}
template <class T, class View>
[[gnu::noinline]] void scatterMatrices(const View& view, int first, int objects, int n, const T* from)
{
    for (int l = 0; l < objects; ++l)
        for (int r = 0; r < n; ++r)
            for (int c = 0; c < n; ++c) view(first + l, r, c) = from[(r * n + c) * objects + l];
}
// Some rows, the first ones: row r of object l is row rows[l * n + r] of the result.
template <class T, class View>
[[gnu::noinline]] void scatterRows(const View& view, int first, int objects, int n, int some, const int* rows,
                                   const T* from)
{
    for (int l = 0; l < objects; ++l)
        for (int r = 0; r < some; ++r)
            for (int c = 0; c < n; ++c) view(first + l, entry(rows, l * n + r), c) = from[(r * n + c) * objects + l];
}

// As many objects as a number holds, from the first on. ---------------------------------------------------------

// Row row(l) of the object of lane l.
template <class View, class Row, class T, int W>
VORM_INLINE void rowsAt(const View& view, int first, const Row& row, T* (&to)[W])
{
    for (int l = 0; l < W; ++l) to[l] = rowAt(view, first + l, row(l));
}

// Each register of a number, k-th of them with the objects from first on; written out where sizes are constants.
template <class Number, class N, class Body>
VORM_INLINE void eachRegister(N, int first, const Body& body)
{
    constexpr int registers = registersIn<Number>, width = RegisterIn<Number>::width;
    if constexpr (std::is_same_v<N, int>)
        for (int k = 0; k < registers; ++k) body(k, first + k * width);
    else
        unrolled<registers>([&](auto k) VORM_INLINE_LAMBDA { body(k, first + k * width); });
}

// Element i of each vector is at x[i].
template <class Number, class View, class N>
VORM_INLINE void loadVectors(const View& view, int first, Number* x, N n)
{
    using T = Element<Number>;
    if constexpr (inLanes<Number> && (isAdjacent<View> || isInPlanes<View>))
        eachRegister<Number>(n, first, [&](auto k, int object) VORM_INLINE_LAMBDA {
            if constexpr (isAdjacent<View>) {
                const T* from[RegisterIn<Number>::width];
                objectsAt(view, object, from);
                loadRows(
                    from, [&](int i) VORM_INLINE_LAMBDA -> auto& { return registerOf(x[i], k); }, n);
            } else {
                for (int i = 0; i < n; ++i) registerOf(x[i], k) = RegisterIn<Number>::load(view.element(i) + object);
            }
        });
    else if constexpr (!inLanes<Number>)
        repeat(n, [&](int i) VORM_INLINE_LAMBDA { x[i] = view(first, i); });
    else
        gatherVectors(view, first, objectsIn<Number>, n, reinterpret_cast<T*>(x));
}
template <class Number, class View, class N>
VORM_INLINE void storeVectors(const View& view, int first, const Number* x, N n)
{
    using T = Element<Number>;
    if constexpr (inLanes<Number> && (isAdjacent<View> || isInPlanes<View>))
        eachRegister<Number>(n, first, [&](auto k, int object) VORM_INLINE_LAMBDA {
            if constexpr (isAdjacent<View>) {
                T* to[RegisterIn<Number>::width];
                objectsAt(view, object, to);
                storeRows(
                    to, [&](int i) VORM_INLINE_LAMBDA { return registerOf(x[i], k); }, n);
            } else {
                for (int i = 0; i < n; ++i) registerOf(x[i], k).store(view.element(i) + object);
            }
        });
    else if constexpr (!inLanes<Number>)
        repeat(n, [&](int i) VORM_INLINE_LAMBDA { view(first, i) = x[i]; });  // a loop would go through memory
    else
        scatterVectors(view, first, objectsIn<Number>, n, reinterpret_cast<const T*>(x));
}

// n adjacent elements of one object.
template <int n, class T>
VORM_INLINE void copyRow(const T* from, T* to)
{
    using Row = SmallVector<T, n>;
    unrolled<Row::parts>([&](auto k) VORM_INLINE_LAMBDA { Row::template putPart<k>(to, Row::template part<k>(from)); });
}

// Element (r, c) of each matrix is at a[r][c].
template <class Number, class View, int n>
VORM_INLINE void loadMatrices(const View& view, int first, Number (&a)[n][n])
{
    using T = Element<Number>;
    if constexpr (inLanes<Number> && isAdjacent<View>)
        unrolled<n>([&](auto r) VORM_INLINE_LAMBDA {
            const T* from[Number::width];
            rowsAt(
                view, first, [r](int) VORM_INLINE_LAMBDA { return int{r}; }, from);
            loadRows(
                from, [&](int c) VORM_INLINE_LAMBDA -> auto& { return a[r][c]; }, constant<n>);
        });
    else if constexpr (inLanes<Number> && isInPlanes<View>)
        unrolled<n>([&](auto r) VORM_INLINE_LAMBDA {
            for (int c = 0; c < n; ++c) a[r][c] = Number::load(view.element(r, c) + first);
        });
    else if constexpr (!inLanes<Number> && isAdjacent<View>)
        unrolled<n>([&](auto r) VORM_INLINE_LAMBDA { copyRow<n, T>(rowAt(view, first, r), a[r]); });
    else
        gatherMatrices(view, first, objectsIn<Number>, n, reinterpret_cast<T*>(a));
}

// The same of any order, packed: element (r, c) at a[r * n + c].
template <class Number, class View>
VORM_INLINE void loadMatrices(const View& view, int first, Number* a, int n)
{
    using T = Element<Number>;
    if constexpr (isAdjacent<View>)
        for (int r = 0; r < n; ++r, a += n) {
            const T* from[Number::width];
            rowsAt(
                view, first, [r](int) VORM_INLINE_LAMBDA { return r; }, from);
            loadRows(
                from, [&](int c) VORM_INLINE_LAMBDA -> auto& { return a[c]; }, n);
        }
    else if constexpr (isInPlanes<View>)
        for (int r = 0; r < n; ++r, a += n)
            for (int c = 0; c < n; ++c) a[c] = Number::load(view.element(r, c) + first);
    else
        gatherMatrices(view, first, objectsIn<Number>, n, reinterpret_cast<T*>(a));
}

template <class Number, class View, int n>
VORM_INLINE void storeMatrices(const View& view, int first, const Number (&a)[n][n])
{
    using T = Element<Number>;
    if constexpr (inLanes<Number> && isAdjacent<View>)
        unrolled<n>([&](auto r) VORM_INLINE_LAMBDA {
            T* to[Number::width];
            rowsAt(
                view, first, [r](int) VORM_INLINE_LAMBDA { return int{r}; }, to);
            storeRows(
                to, [&](int c) VORM_INLINE_LAMBDA { return a[r][c]; }, constant<n>);
        });
    else if constexpr (inLanes<Number> && isInPlanes<View>)
        unrolled<n>([&](auto r) VORM_INLINE_LAMBDA {
            for (int c = 0; c < n; ++c) a[r][c].store(view.element(r, c) + first);
        });
    else if constexpr (!inLanes<Number> && isAdjacent<View>)
        unrolled<n>([&](auto r) VORM_INLINE_LAMBDA { copyRow<n, T>(a[r], rowAt(view, first, r)); });
    else
        scatterMatrices(view, first, objectsIn<Number>, n, reinterpret_cast<const T*>(a));
}
// The same, where a[r] is row rows[l * n + r] of object l.
template <class Number, class View, int n>
VORM_INLINE void storeMatrices(const View& view, int first, const Number (&a)[n][n], const int* rows)
{
    using T = Element<Number>;
    const auto row = [&](int l, int r) VORM_INLINE_LAMBDA { return int{entry(rows, l * n + r)}; };
    if constexpr (inLanes<Number> && isAdjacent<View>)
        unrolled<n>([&](auto r) VORM_INLINE_LAMBDA {
            T* to[Number::width];
            rowsAt(
                view, first, [&](int l) VORM_INLINE_LAMBDA { return row(l, r); }, to);
            storeRows(
                to, [&](int c) VORM_INLINE_LAMBDA { return a[r][c]; }, constant<n>);
        });
    else if constexpr (inLanes<Number> && isInPlanes<View>)
        unrolled<n>([&](auto r) VORM_INLINE_LAMBDA {
            unrolled<Number::width>([&](auto l) VORM_INLINE_LAMBDA {
                T* const* const planes = view.pp + row(l, r) * std::ptrdiff_t{n};
                const std::ptrdiff_t offset = view.shift + first * std::ptrdiff_t{sizeof(T)};
                for (int c = 0; c < n; ++c) elementAt(planes[c] + l, offset) = lane<l>(a[r][c]);
            });
        });
    else if constexpr (!inLanes<Number> && isAdjacent<View>)
        unrolled<n>([&](auto r) VORM_INLINE_LAMBDA { copyRow<n, T>(a[r], rowAt(view, first, row(0, r))); });
    else
        scatterRows(view, first, objectsIn<Number>, n, n, rows, reinterpret_cast<const T*>(a));
}

// Small integers in lanes, integer k of object l to to[l * n + k].
template <int n, class T, int W>
VORM_INLINE void storeIntegers(const Lanes<T, W> (&integers)[n], int* to)
{
    if constexpr (std::is_same_v<T, float>) {
        float* objects[W];
        for (int l = 0; l < W; ++l) objects[l] = reinterpret_cast<float*>(to) + l * n;
        storeRows(
            objects, [&](int k) VORM_INLINE_LAMBDA { return integers[k]; }, constant<n>);
    } else if constexpr (W == narrow<T>) {
        for (int k = 0; k < n; ++k)
            unrolled<W>([&](auto l) VORM_INLINE_LAMBDA { entry(to, l * n + k) = integerInLane<l>(integers[k]); });
    } else {
        Lanes<float, W> halves[n];
        for (int k = 0; k < n; ++k) halves[k] = lowHalves(integers[k]);
        storeIntegers(halves, to);
    }
}

}  // namespace vorm
