// The layers of the eigenproblem subsystem.
#pragma once

#include "frame/layers.hpp"

extern "C" {
#define VORM_FUNCTION VORM_LAYERS
#include "vorm/eigen.inc"
#undef VORM_FUNCTION
}
