// vormMul_mm: the kernel for contiguous elements, single precision.

#include "products/shapes/mm.hpp"

using namespace vorm;
using namespace vorm::products;

extern "C" {

VormStatus n8_ownvormMul_mm_32f(MM_PARAMS(float)) { return mmContiguous<Mm>(MM_ARGS); }
}
