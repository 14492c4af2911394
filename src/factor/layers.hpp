// The layers of the factorisation and solving subsystem.
#pragma once

#include "frame/layers.hpp"

extern "C" {
#define VORM_FUNCTION VORM_LAYERS
#include "vorm/factor.inc"
#undef VORM_FUNCTION
}
