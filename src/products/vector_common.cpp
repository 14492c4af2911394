// One matrix times many vectors: the bodies, for what is asked for.

#include "products/vector_common.hpp"

#include "products/vector_common_bodies.hpp"

namespace vorm::products {

template <class T, int n, Start start, class X, class D>
void commonProducts(const T* a, std::ptrdiff_t row, std::ptrdiff_t column, X x, D y, int count)
{
    const auto matrix = [&](int, int i, int k)
                            VORM_INLINE_LAMBDA { return T(elementAt(advance(a, i * row), k * column)); };
    int done = bodyOf<T, n, start>(matrix, x, y, count);
    for (; done < count; ++done) {
        const auto vector = ScatteredVector<T, n>::load(x, done);
        for (int i = 0; i < n; ++i)
            y(done, i) =
                leftToRight<n, start>([&](auto k) VORM_INLINE_LAMBDA { return matrix(0, i, k) * vector.v[k]; });
    }
}

#define VORM_COMMON_PRODUCTS(T, n, start, Operand)                                             \
    template void commonProducts<T, n, Start::start>(const T*, std::ptrdiff_t, std::ptrdiff_t, \
                                                     Operand<const T, Adjacent>, Operand<T, Adjacent>, int)
#define VORM_EACH_COMMON(T, start, Operand)     \
    VORM_COMMON_PRODUCTS(T, 3, start, Operand); \
    VORM_COMMON_PRODUCTS(T, 4, start, Operand); \
    VORM_COMMON_PRODUCTS(T, 5, start, Operand); \
    VORM_COMMON_PRODUCTS(T, 6, start, Operand)
VORM_EACH_COMMON(float, firstProduct, VectorArray);
VORM_EACH_COMMON(double, firstProduct, VectorArray);
VORM_EACH_COMMON(float, zero, VectorList);
VORM_EACH_COMMON(double, firstProduct, VectorList);
VORM_EACH_COMMON(double, zero, VectorList);

}  // namespace vorm::products
