// Loops whose index is a constant of the program: body(0), body(1), ... written out; and sizes that are either a
// constant of the program, an std::integral_constant, or a number of its run.
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

template <int n>
constexpr std::integral_constant<int, n> constant;

// Written out if the size is a constant, a loop otherwise.
template <class N, class Body>
VORM_INLINE void repeat(N n, const Body& body)
{
    if constexpr (std::is_same_v<N, int>)
        for (int i = 0; i < n; ++i) body(i);
    else
        unrolled<N::value>(body);
}

}  // namespace vorm
