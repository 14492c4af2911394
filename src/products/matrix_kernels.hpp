// The kernels of the matrix products, written once over operand views. A shape header says which
// views its operands are.
#pragma once

#include "products/matrix_fixed.hpp"
#include "products/matrix_kinds.hpp"
#include "products/matrix_planes.hpp"
#include "products/matrix_tiles.hpp"
#include "products/paths.hpp"
#include "vorm/status.h"

namespace vorm {

// The order of a product with a straight-line body, or 0.
template <Bodies bodies>
VORM_INLINE int fixedOrder(Lengths lengths)
{
    const bool square = lengths.m == lengths.n && lengths.n == lengths.k;
    return bodies != Bodies::none && square && lengths.k <= (bodies == Bodies::upTo5 ? 5 : 6) ? lengths.k : 0;
}

// Contiguous rows: stored views of all three operands. -----------------------------------------------

template <class Kind, Bodies bodies, class T, class A, class B, class D>
VORM_INLINE VormStatus contiguousProducts(const A& src1, const B& src2, const D& dst, Lengths lengths, int count)
{
    const auto a = Kind::first(src1);
    const auto b = Kind::second(src2);
    if constexpr (bodies == Bodies::upTo5) {
        if (fixedOrder<Bodies::upTo6>(lengths) == 6)
            return products<T, 6, Order::asInTiles>(a, b, dst, 0, count), StatusOk;
    }
    switch (fixedOrder<bodies>(lengths)) {
    case 3: products<T, 3>(a, b, dst, 0, count); break;
    case 4: products<T, 4>(a, b, dst, 0, count); break;
    case 5: products<T, 5>(a, b, dst, 0, count); break;
    case 6: products<T, 6>(a, b, dst, 0, count); break;
    default:
        for (int n = 0; n < count; ++n)
            generalProduct<Kind>(src1.object(n), src1.stride1, src2.object(n), src2.stride1, dst.object(n), dst.stride1,
                                 lengths);
    }
    return StatusOk;
}

// Elements anywhere: the _S2 and _P kernels. --------------------------------------------------------

enum class Outermost { rows, columns };

// Every sum starts at zero and takes its products in ascending k.
template <class Number, Outermost outermost, class A, class B, class D>
VORM_INLINE void generalProductAnywhere(const A& a, const B& b, const D& dst, Lengths lengths, int object)
{
    const bool byRows = outermost == Outermost::rows;
    for (int outer = 0; outer < (byRows ? lengths.m : lengths.n); ++outer)
        for (int inner = 0; inner < (byRows ? lengths.n : lengths.m); ++inner) {
            const int i = byRows ? outer : inner, j = byRows ? inner : outer;
            Number sum(0);
            for (int k = 0; k < lengths.k; ++k)
                sum = sum + loadLanes<Number>(a, object, i, k) * loadLanes<Number>(b, object, k, j);
            storeLanes(dst, object, i, j, sum);
        }
}

template <class T, Outermost outermost = Outermost::rows, class A, class B, class D>
VORM_INLINE VormStatus productsAnywhere(const A& a, const B& b, const D& dst, Lengths lengths, int first, int count)
{
    switch (fixedOrder<Bodies::upTo6>(lengths)) {
    case 3: products<T, 3>(a, b, dst, first, count); break;
    case 4: products<T, 4>(a, b, dst, first, count); break;
    case 5: products<T, 5>(a, b, dst, first, count); break;
    case 6: products<T, 6>(a, b, dst, first, count); break;
    default:
        for (int n = first; n < count; ++n) generalProductAnywhere<T, outermost>(a, b, dst, lengths, n);
    }
    return StatusOk;
}

// Structure of arrays, order n: the body over registers that hold one element of several objects.
template <class T, int n, class A, class B, class D>
VORM_INLINE void productsInPlanes(const A& a, const B& b, const D& dst, int end)
{
    using Number = Lanes<T>;
    Number ofB[n][n];
    for (int object = 0; object < end; object += Number::width) {
        if (!B::isCommon || object == 0)
            unrolled<n>([&](auto k) VORM_INLINE_LAMBDA {
                unrolled<n>([&](auto j) VORM_INLINE_LAMBDA { ofB[k][j] = loadLanes<Number>(b, object, k, j); });
            });
        for (int i = 0; i < n; ++i) {
            Number row[n];
            unrolled<n>([&](auto k) VORM_INLINE_LAMBDA { row[k] = loadLanes<Number>(a, object, i, k); });
            unrolled<n>([&](auto j) VORM_INLINE_LAMBDA {
                Number sum = row[0] * ofB[0][j];
                unrolled<n - 1>([&](auto k) VORM_INLINE_LAMBDA { sum = sum + row[k + 1] * ofB[k + 1][j]; });
                storeLanes(dst, object, i, j, sum);
            });
        }
    }
}

template <class T, Outermost outermost, class A, class B>
VORM_INLINE VormStatus pointerProducts(const A& a, const B& b, const MatrixArrayPointers<T>& dst, Lengths lengths,
                                       int count)
{
    int inLanes = 0;
    if (count >= Lanes<T>::width && inPlanes(a) && inPlanes(b) && inPlanes(dst) &&
        storesApart(dst, lengths.m * lengths.n)) {
        inLanes = count / Lanes<T>::width * Lanes<T>::width;
        switch (fixedOrder<Bodies::upTo6>(lengths)) {
        case 3: productsInPlanes<T, 3>(a, b, dst, inLanes); break;
        case 4: productsInPlanes<T, 4>(a, b, dst, inLanes); break;
        case 5: productsInPlanes<T, 5>(a, b, dst, inLanes); break;
        case 6: productsInPlanes<T, 6>(a, b, dst, inLanes); break;
        default:
            for (int n = 0; n < inLanes; n += Lanes<T>::width)
                generalProductAnywhere<Lanes<T>, outermost>(a, b, dst, lengths, n);
        }
    }
    return productsAnywhere<T, outermost>(a, b, dst, lengths, inLanes, count);
}

}  // namespace vorm
