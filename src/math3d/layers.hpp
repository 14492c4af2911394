// The layers of the fixed-size 3D math subsystem.
#pragma once

#include "frame/layers.hpp"

extern "C" {
#define VORM_FUNCTION VORM_LAYERS
#include "vorm/math3d.inc"
#undef VORM_FUNCTION
}
