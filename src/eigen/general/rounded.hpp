// A product that is rounded before it is added. Where a sum and a difference of products stand side by side GCC 12
// fuses them on processors with AVX-512, also with -ffp-contract=off.
#pragma once

#include <type_traits>

#include "frame/pin.hpp"

namespace vorm::eigen {

template <class T>
VORM_INLINE T rounded(T product)
{
    if constexpr (std::is_floating_point_v<T>) pin(product);
    return product;
}

}  // namespace vorm::eigen
