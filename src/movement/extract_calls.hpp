// The kernels of vormExtract over the parts of a call: the source, the dense destination, the sizes, the count.
#pragma once

#include "movement/calls.hpp"

namespace vorm::movement {

// Unlike all others, single operands in pointer layout test their sizes first.
using ExtractOnePTests = Tests<Test::size, Test::null, Test::shift>;

// A destination without gaps, whatever the sizes are.
template <class T>
struct Dense {
    T* p;
    template <class Body>
    VORM_INLINE constexpr auto arguments(const Body& body) const
    {
        return body(Pointer<T>{p});
    }
    VORM_INLINE constexpr Dense withAdjacent() const { return *this; }

    // Distances have 64 bits: an object may be larger than strides can tell.
    VORM_INLINE StridedElements<T> elements(std::ptrdiff_t rows, std::ptrdiff_t columns) const
    {
        constexpr std::ptrdiff_t e = sizeof(T);
        return {p, rows * columns * e, columns * e, e};
    }
};
template <class T>
Dense(T*) -> Dense<T>;

template <class TheCall>
VORM_INLINE VormStatus extractKernel(const TheCall& call)
{
    return call.parts.with([](const auto& src, const auto& dst, Size width, auto... rest) VORM_INLINE_LAMBDA {
        const auto move = [&](int rows, int columns, int count) VORM_INLINE_LAMBDA {
            return moveObjects(movedElements(src), dst.elements(rows, columns), rows, columns, count);
        };
        if constexpr ((... || std::is_same_v<decltype(rest), Size>))
            return [&](Size height, auto... count)
                       VORM_INLINE_LAMBDA { return move(height.value, width.value, (1 * ... * count.value)); }(rest...);
        else
            return move(width.value, 1, (1 * ... * rest.value));
    });
}

}  // namespace vorm::movement
