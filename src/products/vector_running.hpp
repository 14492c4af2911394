// One matrix of any size times many vectors, to each of which a vector is added: sums from zero, the products in
// ascending order, what is added last. Whichever objects are done side by side, every sum has this order.
#pragma once

#include "frame/object_lanes.hpp"
#include "frame/overlap.hpp"

namespace vorm::products {

// Vectors of more elements are done one by one: those of a block wait on the stack, turned.
constexpr int mostRunningTerms = 256;

// The matrix has rows stride1 bytes apart; from, added and to are adjacent vectors, one of each for each object.
template <int objects, class T>
VORM_HIDDEN void runningBlock(const T* a, int stride1, const T* const (&from)[objects],
                              const T* const (&added)[objects], T* const (&to)[objects], int rows, int terms);
template <class T>
VORM_HIDDEN void runningSum(const T* a, int stride1, const T* from, const T* added, T* to, int rows, int terms);

// X, Added and D are arrays or lists of adjacent vectors; one that all objects share is an array of objects at the
// same address. Results that share memory are stored in ascending order of the objects.
template <class T, class X, class Added, class D>
VORM_INLINE void runningSums(const T* a, int stride1, const X& x, const Added& added, const D& y, int rows, int terms,
                             int count)
{
    int object = 0;
    const auto blocks = [&](auto objects) VORM_INLINE_LAMBDA {
        while (count - object >= objects && terms <= mostRunningTerms && objectsApart<objects>(y, object, 1, rows)) {
            const T *from[objects], *behind[objects];
            T* to[objects];
            objectsAt(x, object, from), objectsAt(added, object, behind), objectsAt(y, object, to);
            runningBlock<objects>(a, stride1, from, behind, to, rows, terms);
            object += objects;
        }
    };
    blocks(constant<2 * Wide<T>::width>), blocks(constant<Wide<T>::width>);
    for (; object < count; ++object)
        runningSum(a, stride1, x.object(object), added.object(object), y.object(object), rows, terms);
}

}  // namespace vorm::products
