// Many products of order 3 to 6 with a matrix that they share: compiled once for both ways in which it can be read.
#pragma once

#include "frame/elements.hpp"
#include "products/matrix_fixed.hpp"

namespace vorm::products {

// The shared matrix from the right, and from the left.
template <class T, int n, Order order, class A, class D>
VORM_HIDDEN void productsWithCommonSecond(const A& a, const T* b, int stride1, bool isTransposed, const D& dst,
                                          int count);
template <class T, int n, Order order, class B, class D>
VORM_HIDDEN void productsWithCommonFirst(const T* a, int stride1, bool isTransposed, const B& b, const D& dst,
                                         int count);

template <class T>
VORM_INLINE const Matrix<const T, Adjacent>& storedOf(const Matrix<const T, Adjacent>& matrix)
{
    return matrix;
}
template <class T>
VORM_INLINE const Matrix<const T, Adjacent>& storedOf(const Transposed<Matrix<const T, Adjacent>>& matrix)
{
    return matrix.stored;
}

// Any products of order n, with a shared matrix or none. The objects are shown one by one, so that a body is the same
// for an array and a list.
template <class T, int n, Order order = Order::leftToRight, class A, class B, class D>
VORM_INLINE void squareProducts(const A& a, const B& b, const D& dst, int count)
{
    if constexpr (A::isCommon && !D::isCommon)
        productsWithCommonFirst<T, n, order>(storedOf<T>(a).p, storedOf<T>(a).stride1, isTransposed<A>, b, dst, count);
    else if constexpr (B::isCommon && !D::isCommon)
        productsWithCommonSecond<T, n, order>(a, storedOf<T>(b).p, storedOf<T>(b).stride1, isTransposed<B>, dst, count);
    else
        for (int object = 0; object < count; ++object)
            product<T, n, order>(factorsOf<T, n>(a.single(object)), rowsOf<T, n>(b.single(object)), dst.single(object));
}

}  // namespace vorm::products
