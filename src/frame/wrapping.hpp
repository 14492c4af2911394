// 32-bit arithmetic that wraps, for the work measures and the drivers' byte offsets.
#pragma once

#include <cstdint>

namespace vorm {

template <class... Int>
constexpr int wrapAdd(Int... terms)
{
    return static_cast<int>((... + static_cast<uint32_t>(terms)));
}

template <class... Int>
constexpr int wrapMul(Int... factors)
{
    return static_cast<int>((... * static_cast<uint32_t>(factors)));
}

}  // namespace vorm
