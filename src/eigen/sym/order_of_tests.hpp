// What the shapes of both symmetric families share: the order of their tests, and their work space.
#pragma once

#include "eigen/layers.hpp"
#include "frame/call.hpp"

namespace vorm::eigen::sym {

using SymTests = Tests<Test::null, Test::size, Test::count, Test::shift, Test::stride>;

// The order may be nonsense as long as nothing has been tested.
template <class T>
VORM_INLINE WorkSpace<T> workSpace(T* buffer, int order)
{
    return {buffer, order > 0 ? std::size_t(order) * std::size_t(order) : 0};
}

}  // namespace vorm::eigen::sym
