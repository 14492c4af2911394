// Identities of any shape to objects that are told by the distances between their elements (identity.cpp).
#pragma once

#include "frame/elements.hpp"

namespace vorm::movement {

template <class D>
VORM_HIDDEN VormStatus loadIdentities(const D& dst, int rows, int columns, int count);

}  // namespace vorm::movement
