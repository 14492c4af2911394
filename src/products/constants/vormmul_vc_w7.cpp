// vormMul_vc: the kernel for contiguous elements, double precision.

#include "elementwise/calls.hpp"
#include "products/constants/shapes.hpp"

using namespace vorm;
using namespace vorm::elementwise;

extern "C" {

VormStatus n8_ownvormMul_vc_64f(VC_PARAMS(double)) { return contiguousKernel<Mul>(vc(VC_ARGS)); }
}
