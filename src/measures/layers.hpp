// The layers of the subsystem of measures and vector products.
#pragma once

#include "frame/layers.hpp"

extern "C" {
#define VORM_FUNCTION VORM_LAYERS
#include "vorm/measures.inc"
#undef VORM_FUNCTION
}
