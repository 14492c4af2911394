// Whether results share memory. Only those that lie apart may be stored in another order than one after the other.
#pragma once

#include <cstdint>
#include <type_traits>

#include "frame/lanes.hpp"
#include "frame/planes.hpp"

namespace vorm {

// Whether two stretches of memory of so many bytes share none.
VORM_INLINE bool apart(const void* p, const void* q, std::ptrdiff_t bytes)
{
    const std::ptrdiff_t distance = static_cast<const char*>(p) - static_cast<const char*>(q);
    return distance >= bytes || -distance >= bytes;
}

// Whether the rows of len elements of some objects, from the first on, share no memory. Other views than those of
// adjacent elements are stored object by object, or along planes, which planesApart has to allow.
template <int objects, class View>
VORM_INLINE bool objectsApart(const View& view, int first, int rows, int len)
{
    if constexpr (isAdjacent<View>) {
        const std::ptrdiff_t row = len * std::ptrdiff_t{sizeof(*view.object(0))};
        std::ptrdiff_t stride1 = 0;
        if constexpr (requires { view.stride1; }) stride1 = view.stride1;
        const std::ptrdiff_t span = (rows - 1) * stride1 + row;
        if constexpr (requires { view.stride0; }) {
            return view.stride0 >= span ||
                   (view.stride0 >= row && (objects - 1) * std::ptrdiff_t{view.stride0} + row <= stride1);
        } else {
            for (int i = 1; i < objects; ++i)
                for (int j = 0; j < i; ++j)
                    if (!apart(view.object(first + i), view.object(first + j), span)) return false;
            return true;
        }
    }
    return true;
}

// Whether no two planes of a destination share memory within span bytes: only then may an element of a
// later object be stored before one of an earlier object. Most tables ascend, by rows or by columns. Others
// are tested pair by pair, unless that is much beside the work, given as steps for each element.
template <class T>
VORM_INLINE bool planesApart(T* const* pp, int rows, int columns, std::ptrdiff_t span, std::int64_t steps)
{
    const auto ahead = [&](std::int64_t i, std::int64_t j) VORM_INLINE_LAMBDA {
        return reinterpret_cast<const char*>(pp[i]) - reinterpret_cast<const char*>(pp[j]);
    };
    const std::int64_t elements = std::int64_t{rows} * columns;
    const auto ascends = [&](std::int64_t next, std::int64_t back) VORM_INLINE_LAMBDA {
        for (std::int64_t k = 1, i = 0; k < elements; ++k) {
            const std::int64_t before = i;
            i += next;
            if (i >= elements) i -= back;
            if (ahead(i, before) < span) return false;
        }
        return true;
    };
    if (ascends(1, 0) || (columns > 1 && ascends(columns, elements - 1))) return true;
    if (elements / 2 >= steps) return false;
    for (std::int64_t i = 1; i < elements; ++i)
        for (std::int64_t j = 0; j < i; ++j)
            if (!apart(pp[i], pp[j], span)) return false;
    return true;
}

// Whether an array lies in planes, and registers of objects stored to it never overlap each other.
template <class View>
VORM_INLINE bool storableAsPlanes(const View& dst, int rows, int columns, int count)
{
    return inPlanes(dst) &&
           planesApart(dst.pp, rows, columns, std::ptrdiff_t{registerBytes}, std::int64_t{count} * rows);
}

// Whether a run from src to dst gives what a loop over ascending elements would: no element of the source may be
// stored after the run has loaded it but before the loop would have read it, which could only happen within a
// register of so many bytes.
VORM_INLINE bool runsAsLoop(const void* src, const void* dst, std::size_t bytes)
{
    const auto ahead = reinterpret_cast<std::uintptr_t>(dst) - reinterpret_cast<std::uintptr_t>(src);
    return ahead - 1 >= bytes - 1;  // 0 and everything behind the source wrap to large values
}

}  // namespace vorm
