// vormMul_mt: the kernel for contiguous elements, single precision.

#include "products/shapes/mm.hpp"

using namespace vorm;
using namespace vorm::products;

extern "C" {

VormStatus n8_ownvormMul_mt_32f(MM_PARAMS(float)) { return mmContiguous<Mt>(MM_ARGS); }
}
