// Structure of arrays: pointer tables whose objects lie side by side, element by element, so that a
// register along a plane holds the same element of several objects.
#pragma once

#include <cstdint>

#include "frame/operands.hpp"

namespace vorm {

template <class View>
VORM_INLINE bool inPlanes(const View& view)
{
    if constexpr (isTransposed<View>)
        return inPlanes(view.stored);
    else if constexpr (View::isCommon)
        return true;
    else if constexpr (requires { view.pp; })
        return view.stride0 == static_cast<int>(sizeof(*view.pp[0]));
    else
        return view.stride0 == static_cast<int>(sizeof(*view.p));
}

// Whether no two planes of a destination share memory within span bytes: only then may an element of a
// later object be stored before one of an earlier object. Most tables ascend, by rows or by columns. Others
// are tested pair by pair, unless that is much beside the work, given as steps for each element.
template <class T>
VORM_INLINE bool planesApart(T* const* pp, int rows, int columns, std::ptrdiff_t span, std::int64_t steps)
{
    const auto apart = [&](std::int64_t i, std::int64_t j) VORM_INLINE_LAMBDA {
        return reinterpret_cast<const char*>(pp[i]) - reinterpret_cast<const char*>(pp[j]);
    };
    const std::int64_t elements = std::int64_t{rows} * columns;
    const auto ascends = [&](std::int64_t next, std::int64_t back) VORM_INLINE_LAMBDA {
        for (std::int64_t k = 1, i = 0; k < elements; ++k) {
            const std::int64_t before = i;
            i += next;
            if (i >= elements) i -= back;
            if (apart(i, before) < span) return false;
        }
        return true;
    };
    if (ascends(1, 0) || (columns > 1 && ascends(columns, elements - 1))) return true;
    if (elements / 2 >= steps) return false;
    for (std::int64_t i = 1; i < elements; ++i)
        for (std::int64_t j = 0; j < i; ++j)
            if (const std::ptrdiff_t distance = apart(i, j); - span < distance && distance < span) return false;
    return true;
}

}  // namespace vorm
