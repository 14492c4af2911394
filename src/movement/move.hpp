// Objects moved element by element, dst[n](r, c) = src[n](r, c), between operands that are told by the distances
// between their elements: all shapes and readings of a pair of layouts meet here. Compiled once for each of the nine
// pairs and either type (move_*.cpp).
#pragma once

#include "frame/elements.hpp"

namespace vorm::movement {

template <class S, class D>
VORM_HIDDEN VormStatus moveObjects(const S& src, const D& dst, int rows, int columns, int count);

// The elements of a view of any layout: lists are told by the strides within their objects.
template <class View>
constexpr bool isInLists = requires(View view)
{
    view.pp, view.stride2;
};
template <class Stored>
constexpr bool isInLists<Transposed<Stored>> = isInLists<Stored>;
template <class View>
VORM_INLINE auto movedElements(const View& view)
{
    if constexpr (isInLists<View>)
        return listedElementsOf(view);
    else
        return elementsOf(view);
}

// The same from a view to a view.
template <class Src, class Dst>
VORM_INLINE VormStatus move(const Src& src, const Dst& dst, int rows, int columns, int count)
{
    return moveObjects(movedElements(src), movedElements(dst), rows, columns, count);
}

}  // namespace vorm::movement
