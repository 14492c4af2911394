// vormMul_mv: the kernel for contiguous elements, single precision.

#include "products/shapes/mv.hpp"
#include "products/vector_calls.hpp"

using namespace vorm;
using namespace vorm::products;

extern "C" {

VormStatus n8_ownvormMul_mv_32f(MV_PARAMS(float)) { return contiguousKernel<AsStored>(mv<AsStored>(MV_ARGS)); }
}
