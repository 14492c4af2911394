// Values the compiler is to know nothing about.
#pragma once

#include "frame/layers.hpp"

namespace vorm {

// The same number, from which nothing can be learnt about where it came from.
template <class Integer>
VORM_INLINE Integer opaque(Integer number)
{
    __asm__("" : "+r"(number));
    return number;
}

}  // namespace vorm
