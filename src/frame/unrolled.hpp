// Loops whose index is a constant of the program: body(0), body(1), ... written out.
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

}  // namespace vorm
