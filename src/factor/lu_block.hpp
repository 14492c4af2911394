// A block of matrices that are factorised together.
#pragma once

#include <type_traits>

#include "frame/lanes.hpp"
#include "frame/unrolled.hpp"

namespace vorm {

// One object or a register of them: matrices in logical row order, and the source row each row came from,
// whose number in lanes is bits that are only moved.
template <int n, class Number>
struct LuBlock {
    Number a[n][n];
    std::conditional_t<std::is_arithmetic_v<Number>, int, Number> rows[n];
};

}  // namespace vorm
