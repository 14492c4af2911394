// The kernels of the matrix products, written once over operand views. A shape header says which
// views its operands are.
#pragma once

#include <climits>

#include "products/anywhere.hpp"
#include "products/matrix_common.hpp"
#include "products/matrix_general.hpp"
#include "products/matrix_kinds.hpp"
#include "products/paths.hpp"
#include "products/vector_fixed.hpp"
#include "vorm/status.h"

namespace vorm::products {

// The order of a product with a straight-line body, or 0.
template <Bodies bodies>
VORM_INLINE int fixedOrder(Lengths lengths)
{
    const bool square = lengths.m == lengths.n && lengths.n == lengths.k;
    const bool hasBody = lengths.k >= 3 && lengths.k <= (bodies == Bodies::upTo5 ? 5 : 6);
    return bodies != Bodies::none && square && hasBody ? lengths.k : 0;
}

// The rows of a packed array times a shared matrix from the right are vectors times that matrix from the
// left, transposed. Where that is faster: at order 3 several rows fill whole registers.
template <class T, int n>
constexpr bool fasterByRows = n == 3 || (n <= 5 && sizeof(T) == sizeof(float));
template <class T, int n, class B, class U>
VORM_INLINE bool productsByRows(const MatrixArray<U, Adjacent>& a, const B& b, const MatrixArray<T, Adjacent>& dst,
                                int count)
{
    if constexpr (B::isCommon && fasterByRows<T, n>) {
        constexpr int row = n * int{sizeof(T)};
        const bool packed =
            ((a.stride1 ^ row) | (dst.stride1 ^ row) | (a.stride0 ^ n * row) | (dst.stride0 ^ n * row)) == 0;
        if (!packed || count > INT_MAX / n) return false;
        fixedProducts<T, n, Start::firstProduct>(Transposed<B>{b}, VectorArray{a.p, row, adjacent},
                                                 VectorArray{dst.p, row, adjacent}, n * count);
        return true;
    }
    return false;
}
template <class T, int n, class A, class B, class D>
VORM_INLINE bool productsByRows(const A&, const B&, const D&, int)
{
    return false;
}

template <class T, int n, class A, class B, class D>
VORM_INLINE void fixedProductsOfAll(const A& a, const B& b, const D& dst, int count)
{
    if (!productsByRows<T, n>(a, b, dst, count)) squareProducts<T, n>(a, b, dst, count);
}

// Contiguous rows: stored views of all three operands. -----------------------------------------------

template <class Kind, Bodies bodies, class T, class A, class B, class D>
VORM_INLINE VormStatus contiguousProducts(const A& src1, const B& src2, const D& dst, Lengths lengths, int count)
{
    const auto a = Kind::first(src1);
    const auto b = Kind::second(src2);
    if constexpr (bodies == Bodies::upTo5) {
        if (fixedOrder<Bodies::upTo6>(lengths) == 6)
            return squareProducts<T, 6, Order::asInTiles>(a, b, dst, count), StatusOk;
    }
    switch (fixedOrder<bodies>(lengths)) {
    case 3: fixedProductsOfAll<T, 3>(a, b, dst, count); break;
    case 4: fixedProductsOfAll<T, 4>(a, b, dst, count); break;
    case 5: fixedProductsOfAll<T, 5>(a, b, dst, count); break;
    case 6: fixedProductsOfAll<T, 6>(a, b, dst, count); break;
    default:
        for (int n = 0; n < count; ++n)
            generalProduct<Kind>(src1.object(n), src1.stride1, int{sizeof(T)}, Kind::width1(lengths),
                                 Kind::height1(lengths), src2.object(n), src2.stride1, int{sizeof(T)},
                                 Kind::width2(lengths), Kind::height2(lengths), dst.object(n), dst.stride1,
                                 int{sizeof(T)});
    }
    return StatusOk;
}

// Elements anywhere: the _S2 and _P kernels. --------------------------------------------------------

template <class T, Outermost outermost = Outermost::rows, class A, class B, class D>
VORM_INLINE VormStatus productsAnywhere(const A& a, const B& b, const D& dst, Lengths lengths, int first, int count)
{
    productsAnywhere<Second::matrices>(elementsOf(a), elementsOf(b), NothingAdded{}, elementsOf(dst), lengths,
                                       outermost, first, count);
    return StatusOk;
}

template <class T, Outermost outermost, class A, class B, class D>
VORM_INLINE VormStatus pointerProducts(const A& a, const B& b, const D& dst, Lengths lengths, int count)
{
    pointerProducts<Second::matrices>(elementsOf(a), elementsOf(b), NothingAdded{}, elementsOf(dst), lengths, outermost,
                                      count);
    return StatusOk;
}

}  // namespace vorm::products
