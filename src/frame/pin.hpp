// The two places where a compiler is kept from knowing better, in inline assembly that makes no instruction.
#pragma once

#include "frame/layers.hpp"

namespace vorm {

// Keeps a number, or Lanes of them, in a register at this point: sums that are to grow side by side would else be
// added up one after the other, and the rest of them spilled.
template <class Number>
VORM_INLINE void pin(Number& number)
{
    if constexpr (requires { number.v; })
        pin(number.v);
    else
        __asm__("" : "+x"(number));
}

// An integer or address of which nothing is known any more: neither where it came from nor what a test says of it.
template <class Integer>
VORM_INLINE Integer opaque(Integer value)
{
    __asm__("" : "+r"(value));
    return value;
}

// Before a test that is to stay a comparison and a jump: g++ else works out several at once as flags, and adds those.
VORM_INLINE void testHere() { __asm__ volatile(""); }

}  // namespace vorm
