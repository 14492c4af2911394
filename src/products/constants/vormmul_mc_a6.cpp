// vormMul_mc: the kernel for contiguous elements, single precision.

#include "elementwise/matrix_calls.hpp"
#include "products/shapes/mc.hpp"

using namespace vorm;
using namespace vorm::products;
using elementwise::anyStrideKernel, elementwise::contiguousKernel, elementwise::pointerKernel;

extern "C" {

VormStatus n8_ownvormMul_mc_32f(MC_PARAMS(float)) { return contiguousKernel<Mul>(mc<AsStored>(MC_ARGS)); }
}
