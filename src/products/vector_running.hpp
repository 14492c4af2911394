// One matrix of any size times many vectors, to each of which a vector is added: sums from zero, the products in
// ascending order, what is added last. Whichever rows are done side by side, every sum has this order.
#pragma once

#include "frame/minmax.hpp"
#include "frame/operands.hpp"
#include "frame/overlap.hpp"
#include "frame/unrolled.hpp"

namespace vorm::products {

// A matrix whose rows, as many of them as a register has lanes, lie side by side: element k of rows
// p * width + 0, 1, ... makes register p * terms + k. The lanes behind the last row hold that row again.
template <class T>
struct TurnedMatrix {
    static constexpr int width = Lanes<T>::width, mostElements = 4096;
    Lanes<T> lines[mostElements / width];
    static bool holds(std::int64_t rows, int terms)
    {
        return (rows + width - 1) / width * width * terms <= mostElements;
    }
};

// Rows stride1 bytes apart.
template <class T>
VORM_HIDDEN void turn(TurnedMatrix<T>& to, const T* a, int stride1, int rows, int terms);
// The products of one or two vectors; from, added and to are adjacent vectors, one of each for each object.
template <class T, int objects>
VORM_HIDDEN void turnedProduct(const TurnedMatrix<T>& a, const T* const (&from)[objects],
                               const T* const (&added)[objects], T* const (&to)[objects], int rows, int terms);
// A matrix that is too large to be turned as a whole, with one vector.
template <class T>
VORM_HIDDEN void largeProduct(TurnedMatrix<T>& space, const T* a, int stride1, const T* from, const T* added, T* to,
                              int rows, int terms);

// X, Added and D are arrays or lists of adjacent vectors; one that all objects share is an array of objects at the
// same address. Results that share memory are stored in ascending order of the objects.
template <class T, class X, class Added, class D>
VORM_INLINE void runningSums(const T* a, int stride1, const X& x, const Added& added, const D& y, int rows, int terms,
                             int count)
{
    TurnedMatrix<T> matrix;
    if (!TurnedMatrix<T>::holds(rows, terms)) {
        for (int n = 0; n < count; ++n)
            largeProduct(matrix, a, stride1, x.object(n), added.object(n), y.object(n), rows, terms);
        return;
    }
    turn(matrix, a, stride1, rows, terms);
    const auto objects = [&]<int some>(int n) VORM_INLINE_LAMBDA {
        const T *from[some], *behind[some];
        T* to[some];
        for (int o = 0; o < some; ++o)
            from[o] = x.object(n + o), behind[o] = added.object(n + o), to[o] = y.object(n + o);
        turnedProduct(matrix, from, behind, to, rows, terms);
    };
    for (int n = 0; n < count;) {
        if (n + 1 < count && objectsApart<2>(y, n, 1, rows)) {
            objects.template operator()<2>(n);
            n += 2;
        } else {
            objects.template operator()<1>(n++);
        }
    }
}

}  // namespace vorm::products
