// The straight-line bodies: products of a square matrix of order 3 to 6 with a vector. Every element is
// the sum of its products from left to right, whichever lanes they are computed in.
#pragma once

#include "products/vector_common.hpp"

namespace vorm::products {

// A matrix for each object. ------------------------------------------------------------------------------

// As stored: products along the rows, turned so that term k of as many rows as there are lanes makes a
// register.
template <class T, int n, Start start, class Added>
VORM_INLINE void rowsProduct(const T* a, std::ptrdiff_t stride1, const InLine<T, n>& x, Added added, T* y)
{
    using Number = Lanes<T>;
    constexpr int width = Number::width, full = n / width, rest = n % width;
    const auto row = [&](int r) VORM_INLINE_LAMBDA { return advance(a, r * stride1); };
    if constexpr (n < width) {
        const Number r0 = loadRowOfThree<0>(row(0)) * x.v[0], r1 = loadRowOfThree<1>(row(1)) * x.v[0],
                     r2 = loadRowOfThree<2>(row(2)) * x.v[0];
        const Number low = interleaveLow(r0, r1);                 // 00 10 01 11
        const Number high = interleaveHigh(r0, r1);               // 02 12 03 13
        const Number terms[3] = {shuffle<0, 1, 0, 0>(low, r2),    // 00 10 20
                                 shuffle<2, 3, 1, 1>(low, r2),    // 01 11 21
                                 shuffle<0, 1, 2, 2>(high, r2)};  // 02 12 22
        storeThree(y, plusThree(leftToRight<n, start>([&](auto k) VORM_INLINE_LAMBDA { return terms[k]; }), added));
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
                terms[n - 2] = shuffle<0, 2, 0, 2>(low, high);
                terms[n - 1] = shuffle<1, 3, 1, 3>(low, high);
            }
            plus(leftToRight<n, start>([&](auto k) VORM_INLINE_LAMBDA { return terms[k]; }), added + r0).store(y + r0);
        });
        if constexpr (rest == 2) {  // two rows of floats side by side, 4 5 4 5
            const Number r4 = Number::load(row(4)) * x.v[0], r5 = Number::load(row(5)) * x.v[0];
            const Number tails = loadPairs(row(4) + 4, row(5) + 4) * x.v[1];
            const Number low = interleaveLow(r4, r5);    // terms 0 0 1 1
            const Number high = interleaveHigh(r4, r5);  // terms 2 2 3 3
            const Number terms[6] = {low,
                                     highPairs(low, low),
                                     high,
                                     highPairs(high, high),
                                     shuffle<0, 2, 0, 2>(tails, tails),
                                     shuffle<1, 3, 1, 3>(tails, tails)};
            const Number sums = leftToRight<n, start>([&](auto k) VORM_INLINE_LAMBDA { return terms[k]; });
            storeHalf<0>(y + 4, plusFirst<2>(sums, added + 4));
        }
        unrolled<rest == 1>([&](auto g) VORM_INLINE_LAMBDA {
            const T* const p = row(full * width + g);
            Number products[full];
            for (int c = 0; c < full; ++c) products[c] = Number::load(p + c * width) * x.v[c];
            const T sum = leftToRight<n, start>([&](auto k) VORM_INLINE_LAMBDA {
                if constexpr (k < full * width)
                    return lane<k % width>(products[k / width]);
                else
                    return T(elementAt(p + k, 0)) * lane<k - full * width>(x.v[full]);
            });
            elementAt(y + full * width + g, 0) = plus(sum, added + (full * width + g));
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

template <class T, int n, Start start, class Stored, class X, class D, class Added = NothingAdded>
VORM_INLINE void productsByObject(const Stored& a, const X& x, const D& y, int first, int end, const Added& added = {})
{
    const PerObject<InLine<T, n>, X> vectors(x);
    for (int object = first; object < end; ++object)
        rowsProduct<T, n, start>(a.object(object), a.stride1, vectors(object), added.object(object), y.object(object));
}
template <class T, int n, Start start, class Stored, class X, class D>
VORM_INLINE void productsByObject(const Transposed<Stored>& a, const X& x, const D& y, int first, int end)
{
    const PerObject<Spread<T, n>, X> vectors(x);
    for (int object = first; object < end; ++object)
        weightedRows<T, n, start>(a.stored.object(object), a.stored.stride1, vectors(object), y.object(object));
}

// Packed matrices of an odd order: rows that follow one another, of whichever matrices, fill whole registers.
// Each register of elements holds the same one of as many rows as there are lanes.
VORM_INLINE void loadConsecutiveRows(const float* p, Lanes<float> (&elements)[3])
{
    const auto r0 = Lanes<float>::load(p), r1 = Lanes<float>::load(p + 4), r2 = Lanes<float>::load(p + 8);
    const auto inner = shuffle<1, 2, 0, 1>(r0, r1);   // 1 2 4 5
    const auto outer = shuffle<2, 3, 1, 2>(r1, r2);   // 6 7 9 10
    elements[0] = shuffle<0, 3, 0, 2>(r0, outer);     // 0 3 6 9
    elements[1] = shuffle<0, 2, 1, 3>(inner, outer);  // 1 4 7 10
    elements[2] = shuffle<1, 3, 0, 3>(inner, r2);     // 2 5 8 11
}
template <int n>
VORM_INLINE void loadConsecutiveRows(const double* p, Lanes<double> (&elements)[n])
{
    Lanes<double> r[n];
    for (int k = 0; k < n; ++k) r[k] = Lanes<double>::load(p + 2 * k);
    unrolled<n>([&](auto k)
                    VORM_INLINE_LAMBDA { elements[k] = shuffle<k % 2, (n + k) % 2>(r[k / 2], r[(n + k) / 2]); });
}
// Doubles with a vector for each object would need more loads than they save.
template <class T, int n, class X>
constexpr bool rowsFillRegisters = sizeof(T) == sizeof(float) ? n == 3 : n % 2 != 0 && X::isCommon;

template <class T, int n, Start start, class X, class U>
VORM_INLINE int packedRows(const MatrixArray<U, Adjacent>& a, const X& x, const VectorArray<T, Adjacent>& y, int count)
{
    constexpr int width = Lanes<T>::width, row = n * int{sizeof(T)};
    int object = 0;
    if constexpr (rowsFillRegisters<T, n, X>) {
        if (((a.stride1 ^ row) | (a.stride0 ^ n * row) | (y.stride0 ^ row)) != 0) return 0;
        if (!X::isCommon && !isPacked(x, n)) return 0;
        const T *from = a.p, *vectors = x.object(0);
        T* to = y.p;
        Lanes<T> common[n];
        if constexpr (X::isCommon)
            for (int k = 0; k < n; ++k) common[k] = T(x(0, k));
        for (; count - object >= width; object += width) {
            unrolled<n>([&](auto j) VORM_INLINE_LAMBDA {
                Lanes<T> elements[n];
                loadConsecutiveRows(from + j * width * n, elements);
                leftToRight<n, start>([&](auto k) VORM_INLINE_LAMBDA {
                    if constexpr (X::isCommon)
                        return elements[k] * common[k];
                    else
                        return elements[k] * elementOfThrees<j, k>(vectors);
                }).store(to + j * width);
            });
            from += n * n * width, vectors += X::isCommon ? 0 : n * width, to += n * width;
        }
    }
    return object;
}
template <class T, int n, Start start, class A, class X, class D>
VORM_INLINE int packedRows(const A&, const X&, const D&, int)
{
    return 0;
}

template <class T, int n, Start start, class A, class X, class D>
VORM_INLINE void fixedProducts(const A& a, const X& x, const D& y, int count)
{
    if constexpr (A::isCommon && !X::isCommon) {
        productsOfCommon<T, n, start>(a, x, NothingAdded{}, y, count);
    } else {
        const int done = packedRows<T, n, start>(a, x, y, count);
        if (done < count) productsByObject<T, n, start>(a, x, y, done, count);
    }
}

}  // namespace vorm::products
