// One matrix times many vectors: the bodies, for what is asked for.

#include "products/vector_common.hpp"

#include "products/vector_common_bodies.hpp"

namespace vorm::products {

template <class T, int n, Start start, class X, class Added, class D>
void commonProducts(const T* a, std::ptrdiff_t row, std::ptrdiff_t column, X x, Added added, D y, int count)
{
    const auto matrix = [&](int, int i, int k)
                            VORM_INLINE_LAMBDA { return T(elementAt(advance(a, i * row), k * column)); };
    int done = bodyOf<T, n, start>(matrix, x, added, y, count);
    for (; done < count; ++done) {
        const auto vector = ScatteredVector<T, n>::load(x, done);
        for (int i = 0; i < n; ++i)
            y(done, i) =
                plus(leftToRight<n, start>([&](auto k) VORM_INLINE_LAMBDA { return matrix(0, i, k) * vector.v[k]; }),
                     added.object(done) + i);
    }
}

template <class T>
using Packed = VectorArray<T, Adjacent>;
template <class T>
using Listed = VectorList<T, Adjacent>;
#define VORM_COMMON_PRODUCTS(T, n, start, Operand, Added)                                                        \
    template void commonProducts<T, n, Start::start>(const T*, std::ptrdiff_t, std::ptrdiff_t, Operand<const T>, \
                                                     Added, Operand<T>, int)
#define VORM_EACH_COMMON(T, start, Operand, Added)     \
    VORM_COMMON_PRODUCTS(T, 3, start, Operand, Added); \
    VORM_COMMON_PRODUCTS(T, 4, start, Operand, Added); \
    VORM_COMMON_PRODUCTS(T, 5, start, Operand, Added); \
    VORM_COMMON_PRODUCTS(T, 6, start, Operand, Added)
VORM_EACH_COMMON(float, firstProduct, Packed, NothingAdded);
VORM_EACH_COMMON(double, firstProduct, Packed, NothingAdded);
VORM_EACH_COMMON(float, zero, Listed, NothingAdded);
VORM_EACH_COMMON(double, firstProduct, Listed, NothingAdded);
VORM_EACH_COMMON(double, zero, Listed, NothingAdded);

VORM_EACH_COMMON(float, firstProduct, Packed, Packed<const float>);
VORM_EACH_COMMON(double, firstProduct, Packed, Packed<const double>);
VORM_EACH_COMMON(float, firstProduct, Listed, Listed<const float>);
VORM_EACH_COMMON(double, firstProduct, Listed, Listed<const double>);
VORM_EACH_COMMON(float, firstProduct, Listed, Packed<const float>);
VORM_EACH_COMMON(double, firstProduct, Listed, Packed<const double>);

}  // namespace vorm::products
