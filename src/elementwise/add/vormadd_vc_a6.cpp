// vormAdd_vc: the kernel for contiguous elements, single precision.

#include "elementwise/calls.hpp"
#include "elementwise/shapes/vc.hpp"

using namespace vorm;
using namespace vorm::elementwise;

extern "C" {

VormStatus n8_ownvormAdd_vc_32f(VC_PARAMS(float)) { return contiguousKernel<Add>(vc(VC_ARGS)); }
}
