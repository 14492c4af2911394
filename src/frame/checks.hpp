// Argument tests of the public layers. Each folds into plain integer comparisons.
#pragma once

#include "frame/layers.hpp"
#include "frame/pin.hpp"
#include "frame/wrapping.hpp"

namespace vorm {

template <class... Pointer>
constexpr bool anyNull(Pointer... pointers)
{
    return (... || (pointers == nullptr));
}

template <class... Size>
constexpr bool anyBelowOne(Size... sizes)
{
    return (... || (sizes < 1));
}

// A stride is a positive multiple of the element size, a shift a non-negative one.
template <class T, class... Int>
constexpr bool anyBadStride(Int... strides)
{
    return ((... | strides) & int{sizeof(T) - 1}) != 0 || anyBelowOne(strides...);
}

template <class T, class... Int>
constexpr bool anyBadShift(Int... shifts)
{
    return ((... | shifts) & int{sizeof(T) - 1}) != 0 || (... | shifts) < 0;
}

// One comparison for all: where a compiler takes it apart it replaces the strides it has learnt by
// constants, and has to write them to the stack where the transfer to the kernel was a jump.
template <class T, class... Int>
VORM_INLINE bool contiguous(Int... stride2s)
{
    const int difference = (... | (stride2s ^ int{sizeof(T)}));
#ifdef __clang__
    return opaque(difference) == 0;  // g++ does better without
#else
    return difference == 0;
#endif
}

}  // namespace vorm
