// A vector that is added to a product last, or none: the products alone and those with a vector behind them
// share their bodies. Where nothing is added no trace of it is left in the machine code.
#pragma once

#include "frame/shuffles.hpp"

namespace vorm::products {

// In the place of a view, of its objects, and of an address of elements.
struct NothingAdded {
    static constexpr bool isCommon = true;
    VORM_INLINE NothingAdded object(int) const { return {}; }
    VORM_INLINE NothingAdded operator()(int, int) const { return {}; }
    VORM_INLINE NothingAdded operator[](int) const { return {}; }
    VORM_INLINE NothingAdded operator+(int) const { return {}; }
};

// A sum, and what lies at the address of its element: of as many elements as the sum has lanes.
template <class Number>
VORM_INLINE Number plus(Number sum, NothingAdded)
{
    return sum;
}
template <class T>
requires std::is_floating_point_v<T> VORM_INLINE T plus(T sum, const T* added) { return sum + elementAt(added, 0); }
template <class T>
VORM_INLINE Lanes<T> plus(Lanes<T> sum, const T* added)
{
    return sum + Lanes<T>::load(added);
}
// A sum and a number.
template <class T>
requires std::is_floating_point_v<T> VORM_INLINE T plus(T sum, T added) { return sum + added; }

// The first lanes of a sum only; the others hold nothing.
template <int count, class T>
VORM_INLINE Lanes<T> plusFirst(Lanes<T> sum, const T* added)
{
    return sum + loadFirst<count>(added);
}
template <int count, class T>
VORM_INLINE Lanes<T> plusFirst(Lanes<T> sum, NothingAdded)
{
    return sum;
}
// Three floats in lanes 0 to 2.
VORM_INLINE Lanes<float> plusThree(Lanes<float> sum, const float* added) { return sum + loadThree(added); }
VORM_INLINE Lanes<float> plusThree(Lanes<float> sum, NothingAdded) { return sum; }
// Two floats at one address and two at another.
VORM_INLINE Lanes<float> plusPairs(Lanes<float> sum, const float* low, const float* high)
{
    return sum + loadPairs(low, high);
}
VORM_INLINE Lanes<float> plusPairs(Lanes<float> sum, NothingAdded, NothingAdded) { return sum; }

}  // namespace vorm::products
