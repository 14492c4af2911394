// vormMul_tt: the kernel for contiguous elements, double precision.

#include "products/shapes/mm.hpp"

using namespace vorm;
using namespace vorm::products;

extern "C" {

VormStatus n8_ownvormMul_tt_64f(MM_PARAMS(double)) { return mmContiguous<Tt>(MM_ARGS); }
}
