// The straight-line bodies: products of a square matrix of order 3 to 6 with a vector. Every element is
// the sum of its products from left to right, whichever lanes they are computed in.
#pragma once

#include <algorithm>

#include "frame/object_lanes.hpp"
#include "frame/operands.hpp"
#include "frame/shuffles.hpp"
#include "frame/unrolled.hpp"

namespace vorm {

// What a sum starts with: the first product, or zero as in the general path. A sum of negative zeros
// shows the difference.
enum class Start { firstProduct, zero };

// term(0) + term(1) + ... + term(n - 1).
template <int n, Start start, class Term>
VORM_INLINE auto leftToRight(const Term& term)
{
    auto sum = term(std::integral_constant<int, 0>{});
    if constexpr (start == Start::zero) sum = decltype(sum)(0) + sum;
    unrolled<n - 1>([&](auto k) VORM_INLINE_LAMBDA { sum = sum + term(std::integral_constant<int, k + 1>{}); });
    return sum;
}

// An operand in the form Part takes from its view; what all objects share is taken once.
template <class Part, class View>
class PerObject {
public:
    VORM_INLINE explicit PerObject(const View& view) : view_(view)
    {
        if constexpr (View::isCommon) common_ = Part::load(view, 0);
    }
    VORM_INLINE Part operator()(int object) const
    {
        if constexpr (View::isCommon)
            return common_;
        else
            return Part::load(view_, object);
    }

private:
    View view_;
    Part common_;
};

// Elements anywhere, one number each. ------------------------------------------------------------------

template <class T, int n>
struct ScatteredElements {
    T v[n];
    template <class View>
    VORM_INLINE static ScatteredElements load(const View& view, int object)
    {
        ScatteredElements r;
        for (int k = 0; k < n; ++k) r.v[k] = view(object, k);
        return r;
    }
};
template <class T, int n>
struct ScatteredMatrix {
    T v[n][n];
    template <class View>
    VORM_INLINE static ScatteredMatrix load(const View& view, int object)
    {
        ScatteredMatrix r;
        for (int i = 0; i < n; ++i)
            for (int k = 0; k < n; ++k) r.v[i][k] = view(object, i, k);
        return r;
    }
};

template <class T, int n, Start start = Start::firstProduct, class A, class X, class D>
VORM_INLINE void scatteredProducts(const A& a, const X& x, const D& y, int first, int end)
{
    const PerObject<ScatteredMatrix<T, n>, A> matrices(a);
    const PerObject<ScatteredElements<T, n>, X> vectors(x);
    for (int object = first; object < end; ++object) {
        const auto matrix = matrices(object);
        const auto vector = vectors(object);
        T result[n];
        for (int i = 0; i < n; ++i)
            result[i] = leftToRight<n, start>([&](auto k) VORM_INLINE_LAMBDA { return matrix.v[i][k] * vector.v[k]; });
        for (int i = 0; i < n; ++i) y(object, i) = result[i];
    }
}

// Vectors in registers, in the forms the products take them. ---------------------------------------------

// Each element in all lanes.
template <class T, int n>
struct Spread {
    Lanes<T> v[n];
    template <class View>
    VORM_INLINE static Spread load(const View& view, int object)
    {
        constexpr int width = Lanes<T>::width;
        constexpr bool shuffled = width == 4;  // a double is spread by the load itself
        const T* const p = view.object(object);
        Spread r;
        if constexpr (shuffled && n >= width) {
            const auto whole = Lanes<T>::load(p);
            unrolled<width>([&](auto k) VORM_INLINE_LAMBDA { r.v[k] = splat<k>(whole); });
        }
        for (int k = shuffled && n >= width ? width : 0; k < n; ++k) r.v[k] = T(elementAt(p + k, 0));
        return r;
    }
};

// The elements as they lie, and those behind the last full register repeated: 4 4 4 4 or 4 5 4 5 behind
// 0 1 2 3. Three floats are one register, its last lane zero.
template <class T, int n>
struct InLine {
    static constexpr int width = Lanes<T>::width;
    static constexpr int full = n < width ? 1 : n / width, rest = n < width ? 0 : n % width;
    Lanes<T> v[full + (rest != 0)];
    template <class View>
    VORM_INLINE static InLine load(const View& view, int object)
    {
        const T* const p = view.object(object);
        InLine r;
        if constexpr (n < width)
            r.v[0] = loadThree(p);
        else
            for (int c = 0; c < full; ++c) r.v[c] = Lanes<T>::load(p + c * width);
        if constexpr (rest == 1) r.v[full] = T(elementAt(p + n - 1, 0));
        if constexpr (rest == 2) r.v[full] = loadTwice(p + n - 2);
        return r;
    }
};

// Row r of a contiguous matrix of three floats per row, as a whole register whose last lane is undefined.
// The element behind any row but the last one lies within the matrix, and so does the one before the last.
template <int r>
VORM_INLINE Lanes<float> loadRowOfThree(const float* row)
{
    if constexpr (r == 2)
        return _mm_castsi128_ps(_mm_srli_si128(_mm_castps_si128(_mm_loadu_ps(row - 1)), 4));
    else
        return Lanes<float>::load(row);
}

// A matrix for each object. ------------------------------------------------------------------------------

// As stored: products along the rows, turned so that term k of as many rows as there are lanes makes a
// register.
template <class T, int n, Start start>
VORM_INLINE void rowsProduct(const T* a, std::ptrdiff_t stride1, const InLine<T, n>& x, T* y)
{
    using Number = Lanes<T>;
    constexpr int width = Number::width, full = n / width, rest = n % width;
    const auto row = [&](int r) VORM_INLINE_LAMBDA { return advance(a, r * stride1); };
    if constexpr (n < width) {
        const Number r0 = loadRowOfThree<0>(row(0)) * x.v[0], r1 = loadRowOfThree<1>(row(1)) * x.v[0],
                     r2 = loadRowOfThree<2>(row(2)) * x.v[0];
        const Number low = _mm_unpacklo_ps(r0.v, r1.v);                // 00 10 01 11
        const Number high = _mm_unpackhi_ps(r0.v, r1.v);               // 02 12 03 13
        const Number terms[3] = {_mm_shuffle_ps(low.v, r2.v, 0x04),    // 00 10 20
                                 _mm_shuffle_ps(low.v, r2.v, 0x5E),    // 01 11 21
                                 _mm_shuffle_ps(high.v, r2.v, 0xA4)};  // 02 12 22
        storeThree(y, leftToRight<n, start>([&](auto k) VORM_INLINE_LAMBDA { return terms[k]; }));
    } else {
        unrolled<full>([&](auto g) VORM_INLINE_LAMBDA {
            constexpr int r0 = g * width;
            Number terms[n];
            for (int c = 0; c < full; ++c) {
                Number block[width];
                for (int r = 0; r < width; ++r) block[r] = Number::load(row(r0 + r) + c * width) * x.v[c];
                transpose(block);
                for (int k = 0; k < width; ++k) terms[c * width + k] = block[k];
            }
            if constexpr (rest == 1)
                terms[n - 1] =
                    lanes<T>([&](int r) VORM_INLINE_LAMBDA { return T(elementAt(row(r0 + r) + n - 1, 0)); }) *
                    x.v[full];
            if constexpr (rest == 2) {
                const Number low = loadPairs(row(r0) + n - 2, row(r0 + 1) + n - 2) * x.v[full];
                const Number high = loadPairs(row(r0 + 2) + n - 2, row(r0 + 3) + n - 2) * x.v[full];
                terms[n - 2] = _mm_shuffle_ps(low.v, high.v, 0x88);
                terms[n - 1] = _mm_shuffle_ps(low.v, high.v, 0xDD);
            }
            leftToRight<n, start>([&](auto k) VORM_INLINE_LAMBDA { return terms[k]; }).store(y + r0);
        });
        if constexpr (rest == 2) {  // two rows of floats side by side, 4 5 4 5
            const Number r4 = Number::load(row(4)) * x.v[0], r5 = Number::load(row(5)) * x.v[0];
            const Number tails = loadPairs(row(4) + 4, row(5) + 4) * x.v[1];
            const Number low = _mm_unpacklo_ps(r4.v, r5.v);   // terms 0 0 1 1
            const Number high = _mm_unpackhi_ps(r4.v, r5.v);  // terms 2 2 3 3
            const Number terms[6] = {low,
                                     _mm_movehl_ps(low.v, low.v),
                                     high,
                                     _mm_movehl_ps(high.v, high.v),
                                     _mm_shuffle_ps(tails.v, tails.v, 0x88),
                                     _mm_shuffle_ps(tails.v, tails.v, 0xDD)};
            storeHalf<0>(y + 4, leftToRight<n, start>([&](auto k) VORM_INLINE_LAMBDA { return terms[k]; }));
        }
        unrolled<rest == 1>([&](auto g) VORM_INLINE_LAMBDA {
            const T* const p = row(full * width + g);
            Number products[full];
            for (int c = 0; c < full; ++c) products[c] = Number::load(p + c * width) * x.v[c];
            elementAt(y + full * width + g, 0) = leftToRight<n, start>([&](auto k) VORM_INLINE_LAMBDA {
                if constexpr (k < full * width)
                    return lane<k % width>(products[k / width]);
                else
                    return T(elementAt(p + k, 0)) * lane<k - full * width>(x.v[full]);
            });
        });
    }
}

// Transposed: the stored rows, each times its element of the vector, added up.
template <class T, int n, Start start>
VORM_INLINE void weightedRows(const T* a, std::ptrdiff_t stride1, const Spread<T, n>& x, T* y)
{
    using Number = Lanes<T>;
    constexpr int width = Number::width, full = n / width, rest = n % width;
    const auto row = [&](int r) VORM_INLINE_LAMBDA { return advance(a, r * stride1); };
    if constexpr (n < width) {
        storeThree(
            y, leftToRight<n, start>([&](auto k) VORM_INLINE_LAMBDA { return loadRowOfThree<k>(row(k)) * x.v[k]; }));
    } else {
        unrolled<full>([&](auto c) VORM_INLINE_LAMBDA {
            leftToRight<n, start>([&](auto k) VORM_INLINE_LAMBDA {
                return Number::load(row(k) + c * width) * x.v[k];
            }).store(y + c * width);
        });
        if constexpr (rest != 0)
            storeFirst<rest>(y + full * width, leftToRight<n, start>([&](auto k) VORM_INLINE_LAMBDA {
                                 return loadFirst<rest>(row(k) + full * width) * x.v[k];
                             }));
    }
}

template <class T, int n, Start start, class Stored, class X, class D>
VORM_INLINE void productsByObject(const Stored& a, const X& x, const D& y, int count)
{
    const PerObject<InLine<T, n>, X> vectors(x);
    for (int object = 0; object < count; ++object)
        rowsProduct<T, n, start>(a.object(object), a.stride1, vectors(object), y.object(object));
}
template <class T, int n, Start start, class Stored, class X, class D>
VORM_INLINE void productsByObject(const Transposed<Stored>& a, const X& x, const D& y, int count)
{
    const PerObject<Spread<T, n>, X> vectors(x);
    for (int object = 0; object < count; ++object)
        weightedRows<T, n, start>(a.stored.object(object), a.stored.stride1, vectors(object), y.object(object));
}

// One matrix for all objects. ------------------------------------------------------------------------------

// Its elements, each in all lanes.
template <class T, int n>
struct SpreadMatrix {
    Lanes<T> v[n][n];
    template <class A>
    VORM_INLINE explicit SpreadMatrix(const A& a)
    {
        for (int i = 0; i < n; ++i)
            for (int k = 0; k < n; ++k) v[i][k] = T(a(0, i, k));
    }
};

// Its columns, as whole registers of rows, and the elements of the last row, each in all lanes.
template <class T, int n>
struct Columns {
    static constexpr int width = Lanes<T>::width, full = std::max(n / width, 1);
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

// The first four rows of a matrix of floats. The first two products of a sum may change places: so two
// elements of the vector are loaded twice over, 0 1 0 1, and exchanged, 1 0 1 0, where spreading them takes
// two shuffles.
template <int n>
struct FourRows {
    Lanes<float> columns[n];
    template <class A>
    VORM_INLINE explicit FourRows(const A& a)
    {
        for (int k = 0; k < n; ++k)
            columns[k] = lanes<float>([&](int r) VORM_INLINE_LAMBDA { return float(a(0, r, k < 2 ? k ^ r % 2 : k)); });
    }
    struct Vector {
        Lanes<float> firstTwo, lastFour;
        VORM_INLINE explicit Vector(const float* x) : firstTwo(loadTwice(x)), lastFour(Lanes<float>::load(x + n - 4)) {}
    };
    template <Start start>
    VORM_INLINE Lanes<float> times(const Vector& x) const
    {
        const Lanes<float> other = _mm_castsi128_ps(_mm_shuffle_epi32(_mm_castps_si128(x.firstTwo.v), 0xB1));
        Lanes<float> sum = columns[0] * x.firstTwo;
        if constexpr (start == Start::zero) sum = Lanes<float>(0.0f) + sum;
        sum = sum + columns[1] * other;
        unrolled<n - 2>([&](auto k) VORM_INLINE_LAMBDA { sum = sum + columns[k + 2] * splat<k + 6 - n>(x.lastFour); });
        return sum;
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

// Four packed vectors of three floats at a time, whose results fill three registers: lane l of register
// j is element (4 j + l) % 3 of object (4 j + l) / 3.
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
            constexpr int begin = 4 * j, first = begin / 3;  // the lanes belong to this object and the next one
            constexpr auto from = [](int l) { return (begin + l) / 3 == first ? 0 : 3; };
            constexpr int order = from(0) | from(1) << 2 | from(2) << 4 | from(3) << 6;
            result[j] = leftToRight<3, start>([&](auto k) VORM_INLINE_LAMBDA {
                const __m128 elements = Lanes<float>::load(x + 3 * first + k).v;
                return rows[j][k] * Lanes<float>(_mm_shuffle_ps(elements, elements, order));
            });
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
    const FourRows<5> four(a);
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
        four.times<start>(v0).store(to[0]), four.times<start>(v1).store(to[1]);
        four.times<start>(v2).store(to[2]), four.times<start>(v3).store(to[3]);
        const auto sums = leftToRight<5, start>([&](auto k) VORM_INLINE_LAMBDA { return last[k] * elements[k]; });
        unrolled<4>([&](auto l) VORM_INLINE_LAMBDA { elementAt(to[l] + 4, 0) = lane<l>(sums); });
    }
    return object;
}

// Four objects at a time, element by element in registers of four.
template <int n, Start start, class A, class X, class D>
VORM_INLINE int productsOfFour(const A& a, const X& x, const D& y, int count)
{
    const SpreadMatrix<float, n> matrix(a);
    int object = 0;
    for (; count - object >= 4; object += 4) {
        const float* from[4];
        float* to[4];
        objectsAt(x, object, from), objectsAt(y, object, to);
        Lanes<float> vectors[n], results[n];
        loadRows(from, vectors);
        unrolled<n>([&](auto i) VORM_INLINE_LAMBDA {
            results[i] = leftToRight<n, start>([&](auto k) VORM_INLINE_LAMBDA { return matrix.v[i][k] * vectors[k]; });
        });
        storeRows(to, results);
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
        return productsOfFour<n, start>(a, x, y, count);
    } else if constexpr (n == 5) {
        return productsOfFive<start>(a, x, y, count);
    } else if constexpr (n == 4) {
        const FourRows<4> rows(a);
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

template <class T, int n, Start start, class A, class X, class D>
VORM_INLINE void fixedProducts(const A& a, const X& x, const D& y, int count)
{
    if constexpr (A::isCommon && !X::isCommon) {
        const int done = productsOfCommon<T, n, start>(a, x, y, count);
        if (done < count) scatteredProducts<T, n, start>(a, x, y, done, count);
    } else {
        productsByObject<T, n, start>(a, x, y, count);
    }
}

}  // namespace vorm
