// Structure of arrays: pointer tables whose objects lie side by side, element by element, so that a
// register holds the same element of several objects.
#pragma once

#include <cstdlib>

#include "frame/lanes.hpp"
#include "frame/operands.hpp"
#include "frame/unrolled.hpp"

namespace vorm {

template <class View>
VORM_INLINE bool inPlanes(const View& view)
{
    if constexpr (isTransposed<View>)
        return inPlanes(view.stored);
    else if constexpr (View::isCommon)
        return true;
    else
        return view.stride0 == static_cast<int>(sizeof(view(0, 0, 0)));
}

// Element (r, c) of as many objects from the given one on as Number has lanes.
template <class Number, class View>
VORM_INLINE Number loadLanes(const View& view, int object, int r, int c)
{
    if constexpr (isTransposed<View>)
        return loadLanes<Number>(view.stored, object, c, r);
    else if constexpr (View::isCommon || std::is_floating_point_v<Number>)
        return view(object, r, c);
    else
        return Number::load(view.element(r, c) + object);
}
template <class View, class Number>
VORM_INLINE void storeLanes(const View& view, int object, int r, int c, Number v)
{
    if constexpr (std::is_floating_point_v<Number>)
        view(object, r, c) = v;
    else
        v.store(view.element(r, c) + object);
}

// Whether the registers stored for the elements of D lie apart, or are the same: only then may an
// element of a later object be stored before one of an earlier object.
template <class T>
VORM_INLINE bool storesApart(const MatrixArrayPointers<T>& dst, int elements)
{
    const auto apart = [&](int i, int j) VORM_INLINE_LAMBDA {
        return reinterpret_cast<const char*>(dst.pp[i]) - reinterpret_cast<const char*>(dst.pp[j]);
    };
    int ascending = 1;
    while (ascending < elements && apart(ascending, ascending - 1) >= 16) ++ascending;
    for (int i = ascending; i < elements; ++i)
        for (int j = 0; j < i; ++j)
            if (const auto distance = std::abs(apart(i, j)); distance != 0 && distance < 16) return false;
    return true;
}

}  // namespace vorm
