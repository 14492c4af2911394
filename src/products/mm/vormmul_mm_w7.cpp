// vormMul_mm: the kernel for contiguous elements, double precision.

#include "products/shapes/mm.hpp"

using namespace vorm;
using namespace vorm::products;

extern "C" {

VormStatus n8_ownvormMul_mm_64f(MM_PARAMS(double)) { return mmContiguous<Mm>(MM_ARGS); }
}
