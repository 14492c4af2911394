// Products with a shared matrix: the bodies.
#pragma once

#include "products/matrix_common.hpp"

namespace vorm::products {

// The other operand and the destination are copied, so that no store can be taken to change them.
template <class T, int n, Order order, class A, class D>
void productsWithCommonSecond(const A& first, const T* b, int stride1, bool isTransposed, const D& dst, int count)
{
    const A a = first;
    const D d = dst;
    const Matrix stored{b, stride1, adjacent};
    const auto rows = isTransposed ? CommonRows<T, n>(Transposed{stored}) : CommonRows<T, n>(stored);
    for (int object = 0; object < count; ++object)
        product<T, n, order>(factorsOf<T, n>(a.single(object)), rows, d.single(object));
}

template <class T, int n, Order order, class B, class D>
void productsWithCommonFirst(const T* a, int stride1, bool isTransposed, const B& second, const D& dst, int count)
{
    const B b = second;
    const D d = dst;
    const std::ptrdiff_t row = isTransposed ? std::ptrdiff_t{sizeof(T)} : stride1,
                         column = isTransposed ? stride1 : std::ptrdiff_t{sizeof(T)};
    const CommonFactors<T, n> factors([&](int, int i, int k)
                                          VORM_INLINE_LAMBDA { return T(elementAt(advance(a, i * row), k * column)); });
    for (int object = 0; object < count; ++object)
        product<T, n, order>(factors, rowsOf<T, n>(b.single(object)), d.single(object));
}

// The other operand as it is stored, an array or a list, or transposed.
template <class T>
using Packed = MatrixArray<T, Adjacent>;
template <class T>
using Listed = MatrixList<T, Adjacent>;
#define VORM_COMMON_SECOND(T, n, order, Operand, Result) \
    template void productsWithCommonSecond<T, n, Order::order>(const Operand&, const T*, int, bool, const Result&, int)
#define VORM_COMMON_FIRST(T, n, order, Operand, Result) \
    template void productsWithCommonFirst<T, n, Order::order>(const T*, int, bool, const Operand&, const Result&, int)
#define VORM_EACH_ORDER(product, T, Operand, Result) \
    product(T, 3, leftToRight, Operand, Result);     \
    product(T, 4, leftToRight, Operand, Result);     \
    product(T, 5, leftToRight, Operand, Result);     \
    product(T, 6, leftToRight, Operand, Result)

}  // namespace vorm::products
