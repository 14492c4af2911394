// Loops whose index is a constant of the program: body(0), body(1), ... written out.
#pragma once

#include <type_traits>
#include <utility>

#include "frame/layers.hpp"

namespace vorm {

template <int n, class Body>
VORM_INLINE void unrolled(const Body& body)
{
    [&]<int... k>(std::integer_sequence<int, k...>) VORM_INLINE_LAMBDA
    {
        (..., body(std::integral_constant<int, k>{}));
    }
    (std::make_integer_sequence<int, n>{});
}

}  // namespace vorm
