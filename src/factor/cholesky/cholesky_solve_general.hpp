// Substitution with the factor of a Cholesky decomposition of any order: element by element in the destination, and for
// arrays of orders that are not too high several objects at a time in a buffer.
#pragma once

#include "factor/cholesky/cholesky_general.hpp"
#include "factor/cholesky/cholesky_solve.hpp"

namespace vorm::factor {

// What both do, over the elements of the factor and those of the vector, which holds b or gets it as it is read.
template <class Number, class Factor, class B, class X>
VORM_INLINE void choleskySubstituteAnyOrder(const Factor& l, const B& b, const X& x, int n)
{
    for (int i = 0; i < n; ++i)
        x(i) = less(Number(b(i)), i, [&](int j) VORM_INLINE_LAMBDA { return Number(l(i, j) * x(j)); }) * l(i, i);
    for (int i = n - 1; i >= 0; --i)
        x(i) = less(Number(x(i)), n - 1 - i,
                    [&](int k) VORM_INLINE_LAMBDA { return Number(l(i + 1 + k, i) * x(i + 1 + k)); }) *
               l(i, i);
}

// The intermediate vector lives in the destination.
template <class T, class M, class B, class X>
VORM_SHARED void choleskySolveOne(const M matrix, const B b, const X dst, int object, int order)
{
    choleskySubstituteAnyOrder<T>([&](int i, int j) VORM_INLINE_LAMBDA { return T(matrix(object, i, j)); },
                                  [&](int i) VORM_INLINE_LAMBDA { return T(b(object, i)); },
                                  [&](int i) VORM_INLINE_LAMBDA -> decltype(auto) { return dst(object, i); }, order);
}
// The same code for objects of arrays as for single ones.
template <class T, class M, class B, class X>
VORM_INLINE void choleskySolveGeneral(const M& matrix, const B& b, const X& dst, int object, int order)
{
    if constexpr (requires { dst.single(0); })
        choleskySolveOne<T>(matrix.single(object), b.single(object), dst.single(object), 0, order);
    else
        choleskySolveOne<T>(plain(matrix), plain(b), plain(dst), object, order);
}

// The factor is at l[i * n + j]; x holds b before, the solution after. Compiled once, in cholesky_blocks.cpp.
template <class Factor, class Number>
VORM_HIDDEN void choleskySubstituteBuffered(const Factor* l, Number* x, int n);

// Orders up to bufferedOrder run so many registers of objects at once, as every sum waits for its last unknown.
template <class T>
using CholeskyOwnMatrices = Several<Wide<T>, 2>;
template <class L>
using CholeskyOneMatrix = Several<L, 4>;

template <class T, class M, class B, class X>
VORM_SHARED void choleskySolvePairs(const M& matrix, const B& b, const X& dst, int n, int count)
{
    const auto buffered = [&]<class Number>(int first) VORM_INLINE_LAMBDA {
        return n <= bufferedOrder && registersApart<Number>(dst, first, 1, n);
    };
    inBlocks<CholeskyOwnMatrices<T>>(count, buffered, [&]<class Number>(int first) VORM_INLINE_LAMBDA {
        if constexpr (!inLanes<Number>) {
            choleskySolveGeneral<T>(matrix, b, dst, first, n);
        } else {
            Number l[bufferedOrder * bufferedOrder], x[bufferedOrder];
            loadTriangles(matrix, first, n, l);
            loadVectors(b, first, x, n);
            choleskySubstituteBuffered(static_cast<const Number*>(l), x, n);
            storeVectors(dst, first, x, n);
        }
        return StatusOk;
    });
}

template <class L, class M, class B, class X>
VORM_SHARED void choleskySolveVectorsIn(const M& matrix, const B& b, const X& dst, int n, int count)
{
    using T = Element<L>;
    const bool fits = n <= bufferedOrder && count >= narrow<T>;
    L l[bufferedOrder * bufferedOrder];
    if (fits)
        for (int i = 0; i < n; ++i)
            for (int j = 0; j <= i; ++j) l[i * n + j] = T(matrix(0, i, j));
    const auto buffered = [&]<class Number>(int first)
                              VORM_INLINE_LAMBDA { return fits && registersApart<Number>(dst, first, 1, n); };
    inBlocks<CholeskyOneMatrix<L>>(count, buffered, [&]<class Number>(int first) VORM_INLINE_LAMBDA {
        if constexpr (!inLanes<Number>) {
            choleskySolveGeneral<T>(matrix, b, dst, first, n);
        } else {
            Number x[bufferedOrder];
            loadVectors(b, first, x, n);
            choleskySubstituteBuffered(static_cast<const L*>(l), x, n);
            storeVectors(dst, first, x, n);
        }
        return StatusOk;
    });
}
template <class T, class M, class B, class X>
VORM_INLINE void choleskySolveVectors(const M& matrix, const B& b, const X& dst, int n, int count)
{
    inRegistersThatPay<Wide<T>>(
        count, [&]<class L>() VORM_INLINE_LAMBDA { choleskySolveVectorsIn<L>(matrix, b, dst, n, count); });
}

}  // namespace vorm::factor
