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
        return leftToRight<n, start>(
            [&](auto k) VORM_INLINE_LAMBDA { return last[k] * Lanes<T>(_mm_unpacklo_pd(x0.v[k].v, x1.v[k].v)); });
    }
};

// Four rows of a matrix of floats. The first two products of a sum may change places: so two elements of
// the vector are loaded twice over, 0 1 0 1, and exchanged, 1 0 1 0, where spreading them takes two shuffles.
VORM_INLINE Lanes<float> exchanged(Lanes<float> pairs)
{
    return _mm_castsi128_ps(_mm_shuffle_epi32(_mm_castps_si128(pairs.v), 0xB1));
}
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

// Calls body(from, to) with the vectors and results of the objects up to count, some of them at once.
template <int some, class X, class D, class Body>
VORM_INLINE void eachVector(const X& x, const D& y, int object, int count, const Body& body)
{
    for (; count - object >= some; object += some)
        unrolled<some>([&](auto o) VORM_INLINE_LAMBDA { body(x.object(object + o), y.object(object + o)); });
    for (; object < count; ++object) body(x.object(object), y.object(object));
}
template <int some, class T, class Body>
VORM_INLINE void eachVector(const VectorArray<const T, Adjacent>& x, const VectorArray<T, Adjacent>& y, int object,
                            int count, const Body& body)
{
    const std::ptrdiff_t xStep = x.stride0, yStep = y.stride0;
    const T* from = x.object(object);
    T* to = y.object(object);
    for (; count - object >= some; object += some, from = advance(from, some * xStep), to = advance(to, some * yStep))
        unrolled<some>([&](auto o) VORM_INLINE_LAMBDA { body(advance(from, o * xStep), advance(to, o * yStep)); });
    for (; object < count; ++object, from = advance(from, xStep), to = advance(to, yStep)) body(from, to);
}

// Four packed vectors of three floats at a time, whose results fill three registers.
template <Start start, class A>
VORM_INLINE int packedThrees(const A& a, const float* x, float* y, int count)
{
    Lanes<float> rows[3][3];
    for (int j = 0; j < 3; ++j)
        for (int k = 0; k < 3; ++k)
            rows[j][k] = lanes<float>([&](int l) VORM_INLINE_LAMBDA { return float(a(0, (4 * j + l) % 3, k)); });
    int object = 0;
    for (; count - object >= 4; object += 4, x += 12, y += 12) {
        Lanes<float> result[3];
        unrolled<3>([&](auto j) VORM_INLINE_LAMBDA {
            result[j] =
                leftToRight<3, start>([&](auto k) VORM_INLINE_LAMBDA { return rows[j][k] * elementOfThrees<j, k>(x); });
        });
        for (int j = 0; j < 3; ++j) result[j].store(y + 4 * j);
    }
    return object;
}

// Five rows of floats: the last one with four vectors at once, whose elements are picked from the
// registers the other rows need them in.
template <Start start, class A, class X, class D>
VORM_INLINE int productsOfFive(const A& a, const X& x, const D& y, int count)
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
        const __m128 begin01 = _mm_unpacklo_ps(v0.firstTwo.v, v1.firstTwo.v),
                     begin23 = _mm_unpacklo_ps(v2.firstTwo.v, v3.firstTwo.v),
                     middle01 = _mm_shuffle_ps(v0.lastFour.v, v1.lastFour.v, 0x55),
                     middle23 = _mm_shuffle_ps(v2.lastFour.v, v3.lastFour.v, 0x55),
                     end01 = _mm_unpackhi_ps(v0.lastFour.v, v1.lastFour.v),
                     end23 = _mm_unpackhi_ps(v2.lastFour.v, v3.lastFour.v);
        const Lanes<float> elements[5] = {_mm_movelh_ps(begin01, begin23), _mm_movehl_ps(begin23, begin01),
                                          _mm_shuffle_ps(middle01, middle23, 0x88), _mm_movelh_ps(end01, end23),
                                          _mm_movehl_ps(end23, end01)};
        const auto sums = leftToRight<5, start>([&](auto k) VORM_INLINE_LAMBDA { return last[k] * elements[k]; });
        const auto store = [&](const auto& v, auto l) VORM_INLINE_LAMBDA {
            four.times<start>(v).store(to[l]);
            elementAt(to[l] + 4, 0) = lane<l>(sums);
        };
        store(v0, std::integral_constant<int, 0>{}), store(v1, std::integral_constant<int, 1>{});
        store(v2, std::integral_constant<int, 2>{}), store(v3, std::integral_constant<int, 3>{});
    }
    return object;
}

// Six rows of floats for two vectors at once: the first four of one, the last four of the other, and what
// is left of both, which lies side by side where the results are packed.
template <Start start, bool packed, class A, class X, class D>
VORM_INLINE int productsOfSix(const A& a, const X& x, const D& y, int count)
{
    const FourRows<6> first(a, [](int l) { return l; }), last(a, [](int l) { return l + 2; }),
        left(a, [](int l) { return l < 2 ? l + 4 : l - 2; });
    int object = 0;
    for (; count - object >= 2; object += 2) {
        const FourRows<6>::Vector v0(x.object(object)), v1(x.object(object + 1));
        const auto ofBoth =
            left.times<start>(_mm_movelh_ps(v0.firstTwo.v, v1.firstTwo.v), [&](auto k) VORM_INLINE_LAMBDA {
                return Lanes<float>(_mm_shuffle_ps(v0.lastFour.v, v1.lastFour.v, (k - 2) * 0x55));
            });
        float *const to0 = y.object(object), *const to1 = y.object(object + 1);
        first.times<start>(v0).store(to0);
        if constexpr (packed)
            ofBoth.store(to0 + 4);
        else
            storePairs(to0 + 4, to1, ofBoth);
        last.times<start>(v1).store(to1 + 2);
    }
    return object;
}

template <class T>
VORM_INLINE bool isPackedArray(const VectorArray<T, Adjacent>& view, int len)
{
    return view.stride0 == len * static_cast<int>(sizeof(T));
}
template <class View>
VORM_INLINE bool isPackedArray(const View&, int)
{
    return false;
}

// In single precision.
template <class T, int n, Start start, class A, class X, class D>
requires(sizeof(T) == sizeof(float)) VORM_INLINE int productsOfCommon(const A& a, const X& x, const D& y, int count)
{
    if constexpr (n == 6) {
        if (isPackedArray(x, 6) && isPackedArray(y, 6)) return productsOfSix<start, true>(a, x, y, count);
        return productsOfSix<start, false>(a, x, y, count);
    } else if constexpr (n == 5) {
        return productsOfFive<start>(a, x, y, count);
    } else if constexpr (n == 4) {
        const FourRows<4> rows(a, [](int l) { return l; });
        eachVector<4>(x, y, 0, count, [&](const T* from, T* to) VORM_INLINE_LAMBDA {
            rows.times<start>(FourRows<4>::Vector(from)).store(to);
        });
        return count;
    } else {
        int object = 0;
        if (isPackedArray(x, 3) && isPackedArray(y, 3))
            object = packedThrees<start>(a, x.object(0), y.object(0), count);
        const Columns<T, n> columns(a);
        eachVector<2>(x, y, object, count, [&](const T* from, T* to) VORM_INLINE_LAMBDA {
            storeThree(to, columns.template times<start, 0>(Spread<T, n>::load(Vector{from, adjacent}, 0)));
        });
        return count;
    }
}

// In double precision. A row left over is done for two objects at once.
template <class T, int n, Start start, class A, class X, class D>
requires(sizeof(T) == sizeof(double)) VORM_INLINE int productsOfCommon(const A& a, const X& x, const D& y, int count)
{
    const Columns<T, n> columns(a);
    const auto store = [](const Lanes<T>(&results)[n / 2], T* to) VORM_INLINE_LAMBDA {
        for (int c = 0; c < n / 2; ++c) results[c].store(to + 2 * c);
    };
    if constexpr (n % 2 == 0) {
        eachVector<n == 4 ? 2 : 1>(x, y, 0, count, [&](const T* from, T* to) VORM_INLINE_LAMBDA {
            const auto vector = Spread<T, n>::load(Vector{from, adjacent}, 0);
            Lanes<T> results[n / 2];
            unrolled<n / 2>([&](auto c) VORM_INLINE_LAMBDA { results[c] = columns.template times<start, c>(vector); });
            store(results, to);
        });
        return count;
    } else {
        int object = 0;
        for (; count - object >= 2; object += 2) {
            const auto x0 = Spread<T, n>::load(x, object), x1 = Spread<T, n>::load(x, object + 1);
            Lanes<T> results0[n / 2], results1[n / 2];
            unrolled<n / 2>([&](auto c) VORM_INLINE_LAMBDA {
                results0[c] = columns.template times<start, c>(x0), results1[c] = columns.template times<start, c>(x1);
            });
            const Lanes<T> last = columns.template timesLast<start>(x0, x1);
            T* const to0 = y.object(object);
            T* const to1 = y.object(object + 1);
            store(results0, to0), elementAt(to0 + n - 1, 0) = lane<0>(last);
            store(results1, to1), elementAt(to1 + n - 1, 0) = lane<1>(last);
        }
        return object;
    }
}

}  // namespace vorm::products
