// vormMul_vc: the kernel for contiguous elements, single precision.

#include "elementwise/calls.hpp"
#include "products/constants/shapes.hpp"

using namespace vorm;
using namespace vorm::elementwise;

extern "C" {

VormStatus n8_ownvormMul_vc_32f(VC_PARAMS(float)) { return contiguousKernel<Mul>(vc(VC_ARGS)); }
}
