// vormAdd_vv: the kernel for contiguous elements, single precision.

#include "elementwise/calls.hpp"
#include "elementwise/shapes/vv.hpp"

using namespace vorm;
using namespace vorm::elementwise;

extern "C" {

VormStatus n8_ownvormAdd_vv_32f(VV_PARAMS(float)) { return contiguousKernel<Add>(vv(VV_ARGS)); }
}
