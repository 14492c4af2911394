// The operations that work element by element, on one number or on a register of them. An operation is a value, which
// holds what is the same for all elements.
#pragma once

#include "frame/layers.hpp"

namespace vorm {

struct Add {
    template <class Number>
    VORM_INLINE static Number apply(Number a, Number b)
    {
        return a + b;
    }
};
struct Sub {
    template <class Number>
    VORM_INLINE static Number apply(Number a, Number b)
    {
        return a - b;
    }
};
struct SubFrom {  // the constant shapes name their vector first: constant minus element
    template <class Number>
    VORM_INLINE static Number apply(Number a, Number b)
    {
        return b - a;
    }
};

}  // namespace vorm
