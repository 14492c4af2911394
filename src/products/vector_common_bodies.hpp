// One matrix of order 3 to 6 times many vectors: the matrix stays in registers, arranged as the products of
// several vectors need it.
#pragma once

#include "frame/minmax.hpp"
#include "frame/object_lanes.hpp"
#include "products/vector_sums.hpp"

namespace vorm::products {

// Its columns, as whole registers of rows, and the elements of the last row, each in all lanes.
template <class T, int n>
struct Columns {
    static constexpr int width = Lanes<T>::width, full = max(n / width, 1);
    Lanes<T> whole[full][n], last[n];
    template <class A>
    VORM_INLINE explicit Columns(const A& a)
    {
        unrolled<n>([&](auto k) VORM_INLINE_LAMBDA {
            for (int c = 0; c < full; ++c)
                whole[c][k] = lanes<T>([&](int l) VORM_INLINE_LAMBDA {
                    const int r = c * width + l;
                    return r < n ? T(a(0, r, k)) : T(0);
                });
            last[k] = T(a(0, n - 1, k));
        });
    }
    template <Start start, int c>
    VORM_INLINE Lanes<T> times(const Spread<T, n>& x) const
    {
        return leftToRight<n, start>([&](auto k) VORM_INLINE_LAMBDA { return whole[c][k] * x.v[k]; });
    }
    // The last row with two vectors at once.
    template <Start start>
    VORM_INLINE Lanes<T> timesLast(const Spread<T, n>& x0, const Spread<T, n>& x1) const
    {
        return leftToRight<n, start>([&](auto k)
                                         VORM_INLINE_LAMBDA { return last[k] * interleaveLow(x0.v[k], x1.v[k]); });
    }
};

// Four rows of a matrix of floats. The first two products of a sum may change places: so two elements of
// the vector are loaded twice over, 0 1 0 1, and exchanged, 1 0 1 0, where spreading them takes two shuffles.
VORM_INLINE Lanes<float> exchanged(Lanes<float> pairs) { return permute<1, 0, 3, 2>(pairs); }
template <int n>
struct FourRows {
    Lanes<float> columns[n];
    // Lane l is row rows(l).
    template <class A, class Rows>
    VORM_INLINE FourRows(const A& a, const Rows& rows)
    {
        for (int k = 0; k < n; ++k)
            columns[k] =
                lanes<float>([&](int l) VORM_INLINE_LAMBDA { return float(a(0, rows(l), k < 2 ? k ^ l % 2 : k)); });
    }
    // pairs: elements 0 1 0 1; other(k): element k where it belongs.
    template <Start start, class Other>
    VORM_INLINE Lanes<float> times(Lanes<float> pairs, const Other& other) const
    {
        return leftToRight<n, start>([&](auto k) VORM_INLINE_LAMBDA {
            if constexpr (k == 0) return columns[0] * pairs;
            if constexpr (k == 1) return columns[1] * exchanged(pairs);
            if constexpr (k >= 2) return columns[k] * other(k);
        });
    }
    struct Vector {
        Lanes<float> firstTwo, lastFour;
        VORM_INLINE explicit Vector(const float* x) : firstTwo(loadTwice(x)), lastFour(Lanes<float>::load(x + n - 4)) {}
    };
    template <Start start>
    VORM_INLINE Lanes<float> times(const Vector& x) const
    {
        return times<start>(x.firstTwo, [&](auto k) VORM_INLINE_LAMBDA { return splat<k + 4 - n>(x.lastFour); });
    }
};

// Calls body(from, added, to) with each vector, what is added to its product, and the result.
template <class X, class Added, class D, class Body>
VORM_INLINE void eachVector(const X& x, const Added& added, const D& y, int object, int count, const Body& body)
{
    for (; object < count; ++object) body(x.object(object), added.object(object), y.object(object));
}

// Four packed vectors of three floats at a time, whose results fill three registers. From one four to the next what
// is added moves on by some elements.
template <Start start, class A, class Added>
VORM_INLINE int packedThrees(const A& a, const float* x, Added added, int step, float* y, int count)
{
    Lanes<float> rows[3][3];
    for (int j = 0; j < 3; ++j)
        for (int k = 0; k < 3; ++k)
            rows[j][k] = lanes<float>([&](int l) VORM_INLINE_LAMBDA { return float(a(0, (4 * j + l) % 3, k)); });
    int object = 0;
    for (; count - object >= 4; object += 4, x += 12, added = added + step, y += 12) {
        Lanes<float> result[3];
        unrolled<3>([&](auto j) VORM_INLINE_LAMBDA {
            const auto sums =
                leftToRight<3, start>([&](auto k) VORM_INLINE_LAMBDA { return rows[j][k] * elementOfThrees<j, k>(x); });
            result[j] = plus(sums, added + 4 * j);
        });
        for (int j = 0; j < 3; ++j) result[j].store(y + 4 * j);
    }
    return object;
}

// The vector that all objects share is read from four copies of it.
template <Start start, class A, class X, class Added, class D>
VORM_INLINE int productsOfThree(const A& a, const X& x, const Added& added, const D& y, int count)
{
    if (!isPacked(x, 3) || !isPacked(y, 3)) return 0;
    if constexpr (std::is_same_v<Added, NothingAdded>) {
        return packedThrees<start>(a, x.object(0), added, 0, y.object(0), count);
    } else {
        float fourTimes[12];
        const bool isShared = added.stride0 == 0;
        if (isShared)
            for (int i = 0; i < 12; ++i) fourTimes[i] = added(0, i % 3);
        else if (!isPacked(added, 3))
            return 0;
        return packedThrees<start>(a, x.object(0), isShared ? fourTimes : added.object(0), isShared ? 0 : 12,
                                   y.object(0), count);
    }
}

// Five rows of floats: the last one with four vectors at once, whose elements are picked from the
// registers the other rows need them in.
template <Start start, class A, class X, class Added, class D>
VORM_INLINE int productsOfFive(const A& a, const X& x, const Added& added, const D& y, int count)
{
    const FourRows<5> four(a, [](int l) { return l; });
    Lanes<float> last[5];
    for (int k = 0; k < 5; ++k) last[k] = float(a(0, 4, k));
    int object = 0;
    for (; count - object >= 4; object += 4) {
        const float* from[4];
        float* to[4];
        objectsAt(x, object, from), objectsAt(y, object, to);
        // Elements 0 1 0 1 and 1 2 3 4 of each vector.
        const FourRows<5>::Vector v0(from[0]), v1(from[1]), v2(from[2]), v3(from[3]);
        const auto begin01 = interleaveLow(v0.firstTwo, v1.firstTwo), begin23 = interleaveLow(v2.firstTwo, v3.firstTwo),
                   middle01 = shuffle<1, 1, 1, 1>(v0.lastFour, v1.lastFour),
                   middle23 = shuffle<1, 1, 1, 1>(v2.lastFour, v3.lastFour),
                   end01 = interleaveHigh(v0.lastFour, v1.lastFour), end23 = interleaveHigh(v2.lastFour, v3.lastFour);
        const Lanes<float> elements[5] = {lowPairs(begin01, begin23), highPairs(begin01, begin23),
                                          shuffle<0, 2, 0, 2>(middle01, middle23), lowPairs(end01, end23),
                                          highPairs(end01, end23)};
        const auto sums = leftToRight<5, start>([&](auto k) VORM_INLINE_LAMBDA { return last[k] * elements[k]; });
        const auto store = [&](const auto& v, auto l) VORM_INLINE_LAMBDA {
            const auto behind = added.object(object + l);
            plus(four.times<start>(v), behind).store(to[l]);
            elementAt(to[l] + 4, 0) = plus(lane<l>(sums), behind + 4);
        };
        store(v0, std::integral_constant<int, 0>{}), store(v1, std::integral_constant<int, 1>{});
        store(v2, std::integral_constant<int, 2>{}), store(v3, std::integral_constant<int, 3>{});
    }
    return object;
}

// Six rows of floats for two vectors at once: the first four of one, the last four of the other, and what
// is left of both, which lies side by side where the results are packed.
template <Start start, class A, class X, class Added, class D>
VORM_INLINE int productsOfSix(const A& a, const X& x, const Added& added, const D& y, int count)
{
    const FourRows<6> first(a, [](int l) { return l; }), last(a, [](int l) { return l + 2; }),
        left(a, [](int l) { return l < 2 ? l + 4 : l - 2; });
    int object = 0;
    for (; count - object >= 2; object += 2) {
        const FourRows<6>::Vector v0(x.object(object)), v1(x.object(object + 1));
        const auto ofBoth = left.times<start>(lowPairs(v0.firstTwo, v1.firstTwo), [&](auto k) VORM_INLINE_LAMBDA {
            return shuffle<k - 2, k - 2, k - 2, k - 2>(v0.lastFour, v1.lastFour);
        });
        float *const to0 = y.object(object), *const to1 = y.object(object + 1);
        const auto added0 = added.object(object), added1 = added.object(object + 1);
        plus(first.times<start>(v0), added0).store(to0);
        storePairs(to0 + 4, to1, plusPairs(ofBoth, added0 + 4, added1));
        plus(last.times<start>(v1), added1 + 2).store(to1 + 2);
    }
    return object;
}

// In single precision.
template <class T, int n, Start start, class A, class X, class Added, class D>
requires(sizeof(T) == sizeof(float)) VORM_INLINE
    int bodyOf(const A& a, const X& x, const Added& added, const D& y, int count)
{
    if constexpr (n == 6) {
        return productsOfSix<start>(a, x, added, y, count);
    } else if constexpr (n == 5) {
        return productsOfFive<start>(a, x, added, y, count);
    } else if constexpr (n == 4) {
        const FourRows<4> rows(a, [](int l) { return l; });
        eachVector(x, added, y, 0, count, [&](const T* from, auto behind, T* to) VORM_INLINE_LAMBDA {
            plus(rows.times<start>(FourRows<4>::Vector(from)), behind).store(to);
        });
        return count;
    } else {
        int object = 0;
        if constexpr (requires { x.stride0; }) object = productsOfThree<start>(a, x, added, y, count);
        const Columns<T, n> columns(a);
        eachVector(x, added, y, object, count, [&](const T* from, auto behind, T* to) VORM_INLINE_LAMBDA {
            const auto sums = columns.template times<start, 0>(Spread<T, n>::load(Vector{from, adjacent}, 0));
            storeThree(to, plusThree(sums, behind));
        });
        return count;
    }
}

// In double precision. A row left over is done for two objects at once.
template <class T, int n, Start start, class A, class X, class Added, class D>
requires(sizeof(T) == sizeof(double)) VORM_INLINE
    int bodyOf(const A& a, const X& x, const Added& added, const D& y, int count)
{
    const Columns<T, n> columns(a);
    const auto store = [](const Lanes<T>(&sums)[n / 2], auto behind, T* to) VORM_INLINE_LAMBDA {
        Lanes<T> results[n / 2];
        for (int c = 0; c < n / 2; ++c) results[c] = plus(sums[c], behind + 2 * c);
        for (int c = 0; c < n / 2; ++c) results[c].store(to + 2 * c);
    };
    if constexpr (n % 2 == 0) {
        eachVector(x, added, y, 0, count, [&](const T* from, auto behind, T* to) VORM_INLINE_LAMBDA {
            const auto vector = Spread<T, n>::load(Vector{from, adjacent}, 0);
            Lanes<T> sums[n / 2];
            unrolled<n / 2>([&](auto c) VORM_INLINE_LAMBDA { sums[c] = columns.template times<start, c>(vector); });
            store(sums, behind, to);
        });
        return count;
    } else {
        int object = 0;
        for (; count - object >= 2; object += 2) {
            const auto x0 = Spread<T, n>::load(x, object), x1 = Spread<T, n>::load(x, object + 1);
            Lanes<T> sums0[n / 2], sums1[n / 2];
            unrolled<n / 2>([&](auto c) VORM_INLINE_LAMBDA {
                sums0[c] = columns.template times<start, c>(x0), sums1[c] = columns.template times<start, c>(x1);
            });
            const Lanes<T> last = columns.template timesLast<start>(x0, x1);
            T* const to0 = y.object(object);
            T* const to1 = y.object(object + 1);
            const auto behind0 = added.object(object), behind1 = added.object(object + 1);
            store(sums0, behind0, to0), elementAt(to0 + n - 1, 0) = plus(lane<0>(last), behind0 + (n - 1));
            store(sums1, behind1, to1), elementAt(to1 + n - 1, 0) = plus(lane<1>(last), behind1 + (n - 1));
        }
        return object;
    }
}

}  // namespace vorm::products
