// The layers of the element-wise subsystem.
#pragma once

#include "frame/layers.hpp"

extern "C" {
#define VORM_FUNCTION VORM_LAYERS
#include "vorm/elementwise.inc"
#undef VORM_FUNCTION
}
