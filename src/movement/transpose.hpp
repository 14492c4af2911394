// Transposes of objects that are told by the distances between their elements, dst(r, c) being where element (r, c) of
// the source goes (transpose.cpp).
#pragma once

#include "frame/elements.hpp"

namespace vorm::movement {

template <class S, class D>
VORM_HIDDEN VormStatus transposeObjects(const S& src, const D& dst, int rows, int columns, int count);

}  // namespace vorm::movement
