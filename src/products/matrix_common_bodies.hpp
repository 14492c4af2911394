// Products with a shared matrix: the bodies. The matrix is copied, so that no store can be taken to change it.
#pragma once

#include "products/matrix_common.hpp"

namespace vorm::products {

template <class T, int n, Order order, class A, class D>
void productsWithRows(A a, const CommonRows<T, n>& prepared, D dst, int count)
{
    const CommonRows<T, n> rows = prepared;
    for (int object = 0; object < count; ++object)
        product<T, n, order>(factorsOf<T, n>(a.single(object)), rows, dst.single(object));
}

template <class T, int n, Order order, class B, class D>
void productsWithFactors(const CommonFactors<T, n>& prepared, B b, D dst, int count)
{
    const CommonFactors<T, n> factors = prepared;
    for (int object = 0; object < count; ++object)
        product<T, n, order>(factors, rowsOf<T, n>(b.single(object)), dst.single(object));
}

// The other operand as it is stored, an array or a list, or transposed.
template <class T>
using Packed = MatrixArray<T, Adjacent>;
template <class T>
using Listed = MatrixList<T, Adjacent>;
#define VORM_WITH_ROWS(T, n, order, Operand, Result) \
    template void productsWithRows<T, n, Order::order>(Operand, const CommonRows<T, n>&, Result, int)
#define VORM_WITH_FACTORS(T, n, order, Operand, Result) \
    template void productsWithFactors<T, n, Order::order>(const CommonFactors<T, n>&, Operand, Result, int)
#define VORM_EACH_ORDER(product, T, Operand, Result) \
    product(T, 3, leftToRight, Operand, Result);     \
    product(T, 4, leftToRight, Operand, Result);     \
    product(T, 5, leftToRight, Operand, Result);     \
    product(T, 6, leftToRight, Operand, Result)

}  // namespace vorm::products
