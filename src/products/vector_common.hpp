// One matrix of order 3 to 6 times many vectors, compiled once for however the matrix lies and is read.
#pragma once

#include "frame/elements.hpp"
#include "products/vector_sums.hpp"

namespace vorm::products {

// Element (i, k) of the matrix lies at a + i * row + k * column bytes; X and D are arrays or lists of adjacent vectors.
template <class T, int n, Start start, class X, class D>
VORM_HIDDEN void commonProducts(const T* a, std::ptrdiff_t row, std::ptrdiff_t column, X x, D y, int count);

template <class T, int n, Start start, class A, class X, class D>
VORM_INLINE void productsOfCommon(const A& a, const X& x, const D& y, int count)
{
    const auto elements = elementsOf(a);
    commonProducts<T, n, start>(elements.p, elements.row, elements.column, x, y, count);
}

}  // namespace vorm::products
