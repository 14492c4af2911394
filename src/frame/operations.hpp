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
struct Mul {
    template <class Number>
    VORM_INLINE static Number apply(Number a, Number b)
    {
        return a * b;
    }
};

// Sums of scaled elements: every product is rounded before the sum is. The factors stand among the parts of a call.
template <class T>
struct Saxpy {
    T val;
    template <class Number>
    VORM_INLINE Number apply(Number a, Number b) const
    {
        return a * Number(val) + b;
    }
};
template <class T>
struct LComb {
    T val1, val2;
    template <class Number>
    VORM_INLINE Number apply(Number a, Number b) const
    {
        return a * Number(val1) + b * Number(val2);
    }
};

}  // namespace vorm
