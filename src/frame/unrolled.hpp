// Loops whose index is a constant of the program: body(0), body(1), ... written out; and sizes that are either a
// constant of the program, an std::integral_constant, or a number of its run.
#pragma once

#include <type_traits>

#include "frame/layers.hpp"

namespace vorm {

// By hand, since a pack of indices takes one function more, which costs a tenth of the time to compile a unit.
template <int n, int first = 0, class Body>
VORM_INLINE void unrolled(const Body& body)
{
    if constexpr (n > first) body(std::integral_constant<int, first>{});
    if constexpr (n > first + 1) body(std::integral_constant<int, first + 1>{});
    if constexpr (n > first + 2) body(std::integral_constant<int, first + 2>{});
    if constexpr (n > first + 3) body(std::integral_constant<int, first + 3>{});
    if constexpr (n > first + 4) body(std::integral_constant<int, first + 4>{});
    if constexpr (n > first + 5) body(std::integral_constant<int, first + 5>{});
    if constexpr (n > first + 6) unrolled<n, first + 6>(body);
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
