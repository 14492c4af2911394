// vormAdd_vc: the kernel for contiguous elements, double precision.

#include "elementwise/calls.hpp"
#include "elementwise/shapes/vc.hpp"

using namespace vorm;
using namespace vorm::elementwise;

extern "C" {

VormStatus n8_ownvormAdd_vc_64f(VC_PARAMS(double)) { return contiguousKernel<Add>(vc(VC_ARGS)); }
}
