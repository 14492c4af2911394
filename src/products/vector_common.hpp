// One matrix of order 3 to 6 times many vectors, to each of which a vector may be added: compiled once for however
// the matrix lies and is read.
#pragma once

#include "frame/elements.hpp"
#include "products/added.hpp"
#include "products/vector_sums.hpp"

namespace vorm::products {

// Element (i, k) of the matrix lies at a + i * row + k * column bytes; X and D are arrays or lists of adjacent vectors.
// So are those that are added; one that all objects share is an array of objects at the same address.
template <class T, int n, Start start, class X, class Added, class D>
VORM_HIDDEN void commonProducts(const T* a, std::ptrdiff_t row, std::ptrdiff_t column, X x, Added added, D y,
                                int count);

template <class T, int n, Start start, class A, class X, class Added, class D>
VORM_INLINE void productsOfCommon(const A& a, const X& x, const Added& added, const D& y, int count)
{
    const auto elements = elementsOf(a);
    commonProducts<T, n, start>(elements.p, elements.row, elements.column, x, added, y, count);
}

}  // namespace vorm::products
