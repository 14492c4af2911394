// The layers of the products subsystem.
#pragma once

#include "frame/layers.hpp"

extern "C" {
#define VORM_FUNCTION VORM_LAYERS
#include "vorm/products.inc"
#undef VORM_FUNCTION
}
