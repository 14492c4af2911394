// The kernels of the products with vectors, written once over operand views. A shape header says which
// views its operands are.
#pragma once

#include "products/anywhere.hpp"
#include "products/paths.hpp"
#include "products/vector_fixed.hpp"
#include "products/vector_general.hpp"
#include "vorm/status.h"

namespace vorm::products {

// Calls body(integral_constant<int, n>) for a square matrix of order n from 3 to 6; false for any other.
template <class Body>
VORM_INLINE bool withOrder(int rows, int terms, const Body& body)
{
    switch (rows == terms ? rows : 0) {
    case 3: body(std::integral_constant<int, 3>{}); return true;
    case 4: body(std::integral_constant<int, 4>{}); return true;
    case 5: body(std::integral_constant<int, 5>{}); return true;
    case 6: body(std::integral_constant<int, 6>{}); return true;
    default: return false;
    }
}

// Contiguous elements. --------------------------------------------------------------------------------

template <class Form, class T, class A, class X, class D>
VORM_INLINE VormStatus contiguousProduct(const A& src1, const X& x, const D& y, int width, int height)
{
    const bool done = withOrder(width, height, [&](auto n) VORM_INLINE_LAMBDA {
        productsByObject<T, n, Start::firstProduct>(Form::used(src1), x, y, 0, 1);
    });
    if (done) return StatusOk;
    if constexpr (Form::isTransposed)
        generalProductTransposed(src1.p, src1.stride1, x.p, y.p, width, height);
    else
        generalProduct(src1.p, src1.stride1, x.p, y.p, height, width);
    return StatusOk;
}

template <class Form, Bodies bodies, class T, class A, class X, class D>
VORM_INLINE VormStatus contiguousProducts(const A& src1, const X& x, const D& y, int width, int height, int count)
{
    // Without straight-line bodies the sums start at zero, and have the same order otherwise.
    constexpr Start start = bodies == Bodies::none ? Start::zero : Start::firstProduct;
    const auto a = Form::used(src1);
    const bool done =
        withOrder(width, height, [&](auto n) VORM_INLINE_LAMBDA { fixedProducts<T, n, start>(a, x, y, count); });
    if (done) return StatusOk;

    const int rows = Form::rows(width, height), terms = width + height - rows;
    if constexpr (bodies == Bodies::none && !Form::isTransposed) {
        runningProducts<T>(a, x, y, rows, terms, count);
    } else {
        for (int n = 0; n < count; ++n) {
            const T* const matrix = src1.object(n);
            if constexpr (bodies == Bodies::none)
                columnStrip<RunningSums>(matrix, src1.stride1, x.object(n), y.object(n), 0, rows, terms);
            else if constexpr (Form::isTransposed)
                generalProductOfArrayTransposed(matrix, src1.stride1, x.object(n), y.object(n), rows, terms);
            else
                generalProductOfArray(matrix, src1.stride1, x.object(n), y.object(n), rows, terms);
        }
    }
    return StatusOk;
}

// Elements anywhere: the _S2 and _P kernels. ------------------------------------------------------------

// One product is done where it is called, since that takes less time than to say where the elements lie.
template <class T, class A, class X, class D, class Added = NothingAdded>
VORM_INLINE void productAnywhere(const A& a, const X& x, const D& y, int rows, int terms, const Added& added = {})
{
    const bool done =
        withOrder(rows, terms, [&](auto n) VORM_INLINE_LAMBDA { scatteredProducts<T, n>(a, x, y, 0, 1, added); });
    if (done) return;
    for (int i = 0; i < rows; ++i) {
        T sum(0);
        for (int k = 0; k < terms; ++k) sum += a(0, i, k) * x(0, k);
        y(0, i) = plus(sum, added(0, i));
    }
}

template <class T, class A, class X, class D>
VORM_INLINE VormStatus productsAnywhere(const A& a, const X& x, const D& y, int rows, int terms, int first, int count)
{
    if constexpr (D::isCommon)
        productAnywhere<T>(a, x, y, rows, terms);
    else
        productsAnywhere<Second::vectors>(elementsOf(a), elementsOf(x), NothingAdded{}, elementsOf(y), {rows, 1, terms},
                                          Outermost::rows, first, count);
    return StatusOk;
}

template <class T, class A, class X, class D>
VORM_INLINE VormStatus pointerProducts(const A& a, const X& x, const D& y, int rows, int terms, int count)
{
    pointerProducts<Second::vectors>(elementsOf(a), elementsOf(x), NothingAdded{}, elementsOf(y), {rows, 1, terms},
                                     Outermost::rows, count);
    return StatusOk;
}

}  // namespace vorm::products
