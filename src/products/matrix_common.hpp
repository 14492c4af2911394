// Many products of order 3 to 6 with a matrix that they share, which has been prepared: compiled once for both ways in
// which it can be read.
#pragma once

#include "products/matrix_fixed.hpp"

namespace vorm::products {

// The shared matrix from the right, by rows, and from the left, by elements.
template <class T, int n, Order order, class A, class D>
VORM_HIDDEN void productsWithRows(A a, const CommonRows<T, n>& rows, D dst, int count);
template <class T, int n, Order order, class B, class D>
VORM_HIDDEN void productsWithFactors(const CommonFactors<T, n>& factors, B b, D dst, int count);

// Any products of order n, shared matrices or none. The objects are shown one by one, so that a body is the same for an
// array and a list.
template <class T, int n, Order order = Order::leftToRight, class A, class B, class D>
VORM_INLINE void squareProducts(const A& a, const B& b, const D& dst, int count)
{
    if constexpr (A::isCommon && !D::isCommon)
        productsWithFactors<T, n, order>(CommonFactors<T, n>(a), b, dst, count);
    else if constexpr (B::isCommon && !D::isCommon)
        productsWithRows<T, n, order>(a, CommonRows<T, n>(b), dst, count);
    else
        for (int object = 0; object < count; ++object)
            product<T, n, order>(factorsOf<T, n>(a.single(object)), rowsOf<T, n>(b.single(object)), dst.single(object));
}

}  // namespace vorm::products
