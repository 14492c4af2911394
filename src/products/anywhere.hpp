// Products whose elements lie anywhere: the _S2 and _P kernels, compiled once for all kinds and shapes. Square matrices
// of order 3 to 6 have straight-line bodies, whose sums go from left to right with the first product as the start
// value; all other sums start at zero and take their products in ascending k.
#pragma once

#include "frame/elements.hpp"
#include "frame/layers.hpp"
#include "products/added.hpp"
#include "products/matrix_kinds.hpp"

namespace vorm::products {

// Matrices times matrices, or times vectors, which are as many columns wide as lengths say: one.
enum class Second { matrices, vectors };

// The order of a product with a straight-line body, or 0.
template <Second second>
VORM_INLINE int squareOrder(Lengths lengths)
{
    const bool isSquare = lengths.m == lengths.k && (second == Second::vectors || lengths.n == lengths.k);
    return isSquare && lengths.k >= 3 && lengths.k <= 6 ? lengths.k : 0;
}

// Which loop is outside where lengths are no constants: that is, which elements are written first.
enum class Outermost { rows, columns };

// D = A B for the objects from first up to end, or D = A B + added, which then are Elements<const T> too.
template <Second second, class T, template <class> class Elements, class Added>
VORM_HIDDEN void productsAnywhere(const Elements<const T>& a, const Elements<const T>& b, const Added& added,
                                  const Elements<T>& d, Lengths lengths, Outermost outermost, int first, int end);

// The same in pointer layout, through whole registers of objects where they lie in planes.
template <Second second, class T, class Added>
VORM_HIDDEN void pointerProducts(const TabledElements<const T>& a, const TabledElements<const T>& b, const Added& added,
                                 const TabledElements<T>& d, Lengths lengths, Outermost outermost, int count);

}  // namespace vorm::products
