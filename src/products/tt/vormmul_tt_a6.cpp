// vormMul_tt: the kernel for contiguous elements, single precision.

#include "products/shapes/mm.hpp"

using namespace vorm;
using namespace vorm::products;

extern "C" {

VormStatus n8_ownvormMul_tt_32f(MM_PARAMS(float)) { return mmContiguous<Tt>(MM_ARGS); }
}
