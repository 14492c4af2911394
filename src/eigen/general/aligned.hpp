// A caller's work space from its first element on that lies as elements of its type have to: one element less at most.
#pragma once

#include <cstdint>

#include "frame/layers.hpp"

namespace vorm::eigen {

template <class T>
VORM_INLINE T* aligned(T* p)
{
    return reinterpret_cast<T*>((reinterpret_cast<std::uintptr_t>(p) + (alignof(T) - 1)) & ~(alignof(T) - 1));
}

}  // namespace vorm::eigen
