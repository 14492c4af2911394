// The bodies of the products whose elements lie anywhere.

#include "products/anywhere.hpp"

#include "frame/shuffles.hpp"
#include "frame/unrolled.hpp"

namespace vorm::products {

namespace {

// Each row of D as a sum of the rows of B, which are gathered into registers, once where all objects share it.
template <class T, int n, template <class> class Elements>
[[gnu::noinline]] void squareMatrices(const Elements<const T>& a, const Elements<const T>& b, const Elements<T>& d,
                                      int first, int end)
{
    constexpr int width = Lanes<T>::width, parts = (n + width - 1) / width;
    Lanes<T> rows[n][parts];
    for (int object = first; object < end; ++object) {
        if (object == first || !b.isCommon()) {
            const auto ofB = b[object];
            for (int k = 0; k < n; ++k)
                for (int p = 0; p < parts; ++p)
                    rows[k][p] = lanes<T>([&](int l) VORM_INLINE_LAMBDA {
                        const int c = p * width + l;
                        return c < n ? T(ofB(k, c)) : T(0);
                    });
        }
        const auto ofA = a[object];
        const auto ofD = d[object];
#pragma GCC unroll 1
        for (int i = 0; i < n; ++i) {
            Lanes<T> sums[parts];
            for (int k = 0; k < n; ++k) {
                const Lanes<T> factor = T(ofA(i, k));
                for (int p = 0; p < parts; ++p) sums[p] = k == 0 ? factor * rows[0][p] : sums[p] + factor * rows[k][p];
            }
            unrolled<n>([&](auto c) VORM_INLINE_LAMBDA { ofD(i, c) = lane<c % width>(sums[c / width]); });
        }
    }
}

// A table whose distances are known when the kernel is compiled.
template <class T, int row, int column>
struct KnownTable {
    T* const* pp;
    std::ptrdiff_t shift, object;
    explicit KnownTable(const TabledElements<T>& table) : pp(table.pp), shift(table.shift), object(table.object) {}
    VORM_INLINE auto operator[](int n) const
    {
        return [table = pp, offset = shift + n * object](int r, int c)
                   VORM_INLINE_LAMBDA -> decltype(auto) { return elementAt(table[r * row + c * column], offset); };
    }
};

VORM_INLINE NothingAdded elementAdded(NothingAdded, int) { return {}; }
template <class Object>
VORM_INLINE auto elementAdded(const Object& added, int i)
{
    return added(i, 0);
}

// Vectors, one number each. What all objects share is read once, but for a vector that is added.
template <class T, int n, bool commonA, bool commonX, class A, class X, class Added, class D>
VORM_INLINE void squareVectorsHere(const A a, const X x, const Added added, const D y, int first, int end)
{
    T matrix[n][n], vector[n], sums[n];
    const auto loadMatrix = [&](int object) VORM_INLINE_LAMBDA {
        const auto from = a[object];
        for (int i = 0; i < n; ++i)
            for (int k = 0; k < n; ++k) matrix[i][k] = from(i, k);
    };
    const auto loadVector = [&](int object) VORM_INLINE_LAMBDA {
        const auto from = x[object];
        for (int k = 0; k < n; ++k) vector[k] = from(k, 0);
    };
    if constexpr (commonA) loadMatrix(0);
    if constexpr (commonX) loadVector(0);
    for (int object = first; object < end; ++object) {
        if constexpr (!commonA) loadMatrix(object);
        if constexpr (!commonX) loadVector(object);
        for (int i = 0; i < n; ++i) {
            sums[i] = matrix[i][0] * vector[0];
            for (int k = 1; k < n; ++k) sums[i] += matrix[i][k] * vector[k];
        }
        const auto to = y[object];
        const auto behind = added[object];
        for (int i = 0; i < n; ++i) sums[i] = plus(sums[i], elementAdded(behind, i));
        for (int i = 0; i < n; ++i) to(i, 0) = sums[i];
    }
}

template <class T, int n, bool commonA, bool commonX, template <class> class Elements, class Added>
[[gnu::noinline]] void squareVectors(const Elements<const T>& a, const Elements<const T>& x, const Added& added,
                                     const Elements<T>& y, int first, int end)
{
    squareVectorsHere<T, n, commonA, commonX>(a, x, added, y, first, end);
}
template <class T, int n, bool commonA, bool commonX, class Added>
[[gnu::noinline]] void squareVectors(const TabledElements<const T>& a, const TabledElements<const T>& x,
                                     const Added& added, const TabledElements<T>& y, int first, int end)
{
    const KnownTable<const T, 1, 0> ofX(x);
    const KnownTable<T, 1, 0> ofY(y);
    if constexpr (!std::is_same_v<Added, NothingAdded>)  // to products with a matrix as stored only
        squareVectorsHere<T, n, commonA, commonX>(KnownTable<const T, n, 1>(a), ofX, KnownTable<const T, 1, 0>(added),
                                                  ofY, first, end);
    else if (a.column == 1)
        squareVectorsHere<T, n, commonA, commonX>(KnownTable<const T, n, 1>(a), ofX, added, ofY, first, end);
    else
        squareVectorsHere<T, n, commonA, commonX>(KnownTable<const T, 1, n>(a), ofX, added, ofY, first, end);
}

// Some sums side by side, of the products of elements (c, k) with the factor of term k.
template <int some, class T, class Element, class Factor, class Store>
VORM_INLINE void someSums(int terms, const Element& element, const Factor& factor, const Store& store)
{
    T sums[some] = {};
    for (int k = 0; k < terms; ++k)
        for (int c = 0; c < some; ++c) sums[c] += element(c, k) * factor(k);
    for (int c = 0; c < some; ++c) store(c, sums[c]);
}
template <class T, class Element, class Factor, class Store>
VORM_INLINE void eachSum(int count, int terms, const Element& element, const Factor& factor, const Store& store)
{
    const auto from = [&]<int some>(int first) VORM_INLINE_LAMBDA {
        someSums<some, T>(
            terms, [&](int c, int k) VORM_INLINE_LAMBDA { return element(first + c, k); }, factor,
            [&](int c, T sum) VORM_INLINE_LAMBDA { store(first + c, sum); });
    };
    int c = 0;
    for (; c + 4 <= count; c += 4) from.template operator()<4>(c);
    if (c + 2 <= count) from.template operator()<2>(c), c += 2;
    if (c < count) from.template operator()<1>(c);
}

template <class T, Outermost outermost, template <class> class Elements, class Added>
[[gnu::noinline]] void anyLengths(const Elements<const T>& a, const Elements<const T>& b, const Added& added,
                                  const Elements<T>& d, Lengths lengths, int first, int end)
{
    for (int object = first; object < end; ++object) {
        const auto ofA = a[object];
        const auto ofB = b[object];
        const auto ofD = d[object];
        const auto behind = added[object];
        if constexpr (outermost == Outermost::rows)
            for (int i = 0; i < lengths.m; ++i)
                eachSum<T>(
                    lengths.n, lengths.k, [&](int j, int k) VORM_INLINE_LAMBDA { return ofB(k, j); },
                    [&](int k) VORM_INLINE_LAMBDA { return ofA(i, k); },
                    [&](int j, T sum) VORM_INLINE_LAMBDA { ofD(i, j) = sum; });
        else
            for (int j = 0; j < lengths.n; ++j)
                eachSum<T>(
                    lengths.m, lengths.k, [&](int i, int k) VORM_INLINE_LAMBDA { return ofA(i, k); },
                    [&](int k) VORM_INLINE_LAMBDA { return ofB(k, j); },
                    [&](int i, T sum) VORM_INLINE_LAMBDA { ofD(i, j) = plus(sum, elementAdded(behind, i)); });
    }
}

}  // namespace

template <Second second, class T, template <class> class Elements, class Added>
void productsAnywhere(const Elements<const T>& a, const Elements<const T>& b, const Added& added, const Elements<T>& d,
                      Lengths lengths, Outermost outermost, int first, int end)
{
    const auto ofOrder = [&]<int n>() VORM_INLINE_LAMBDA {
        if constexpr (second == Second::matrices)
            squareMatrices<T, n>(a, b, d, first, end);
        else if (!std::is_same_v<Added, NothingAdded> || a.isCommon())  // where a vector is added A is common
            squareVectors<T, n, true, false>(a, b, added, d, first, end);
        else if (b.isCommon())
            squareVectors<T, n, false, true>(a, b, added, d, first, end);
        else
            squareVectors<T, n, false, false>(a, b, added, d, first, end);
    };
    switch (squareOrder<second>(lengths)) {
    case 3: return ofOrder.template operator()<3>();
    case 4: return ofOrder.template operator()<4>();
    case 5: return ofOrder.template operator()<5>();
    case 6: return ofOrder.template operator()<6>();
    default:
        if (second == Second::vectors || outermost == Outermost::columns)
            anyLengths<T, Outermost::columns>(a, b, added, d, lengths, first, end);
        else
            anyLengths<T, Outermost::rows>(a, b, added, d, lengths, first, end);
    }
}

#define VORM_SUMS_ANYWHERE(second, T, Elements, Added)                                                               \
    template void productsAnywhere<Second::second>(const Elements<const T>&, const Elements<const T>&, const Added&, \
                                                   const Elements<T>&, Lengths, Outermost, int, int)
#define VORM_PRODUCTS_ANYWHERE(second, T, Elements) VORM_SUMS_ANYWHERE(second, T, Elements, NothingAdded)
VORM_PRODUCTS_ANYWHERE(matrices, float, StridedElements);
VORM_PRODUCTS_ANYWHERE(matrices, double, StridedElements);
VORM_PRODUCTS_ANYWHERE(matrices, float, TabledElements);
VORM_PRODUCTS_ANYWHERE(matrices, double, TabledElements);
VORM_PRODUCTS_ANYWHERE(vectors, float, StridedElements);
VORM_PRODUCTS_ANYWHERE(vectors, double, StridedElements);
VORM_PRODUCTS_ANYWHERE(vectors, float, TabledElements);
VORM_PRODUCTS_ANYWHERE(vectors, double, TabledElements);
VORM_SUMS_ANYWHERE(vectors, float, StridedElements, StridedElements<const float>);
VORM_SUMS_ANYWHERE(vectors, double, StridedElements, StridedElements<const double>);
VORM_SUMS_ANYWHERE(vectors, float, ListedElements, ListedElements<const float>);
VORM_SUMS_ANYWHERE(vectors, double, ListedElements, ListedElements<const double>);
VORM_SUMS_ANYWHERE(vectors, float, TabledElements, TabledElements<const float>);
VORM_SUMS_ANYWHERE(vectors, double, TabledElements, TabledElements<const double>);

}  // namespace vorm::products
