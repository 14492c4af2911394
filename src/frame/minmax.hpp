// The smaller and the larger of two integers, for which <algorithm> costs a quarter of the time to compile a unit.
#pragma once

namespace vorm {

template <class Int>
constexpr Int min(Int a, Int b)
{
    return b < a ? b : a;
}
template <class Int>
constexpr Int max(Int a, Int b)
{
    return a < b ? b : a;
}

}  // namespace vorm
