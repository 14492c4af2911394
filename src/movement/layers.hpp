// The layers of the data movement subsystem.
#pragma once

#include "frame/layers.hpp"

extern "C" {
#define VORM_FUNCTION VORM_LAYERS
#include "vorm/movement.inc"
#undef VORM_FUNCTION
}
