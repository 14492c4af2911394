// vormMul_tm: the kernel for contiguous elements, single precision.

#include "products/shapes/mm.hpp"

using namespace vorm;
using namespace vorm::products;

extern "C" {

VormStatus n8_ownvormMul_tm_32f(MM_PARAMS(float)) { return mmContiguous<Tm, Bodies::upTo5>(MM_ARGS); }
}
