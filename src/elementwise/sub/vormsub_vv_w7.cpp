// vormSub_vv: the kernel for contiguous elements, double precision.

#include "elementwise/calls.hpp"
#include "elementwise/shapes/vv.hpp"

using namespace vorm;
using namespace vorm::elementwise;

extern "C" {

VormStatus n8_ownvormSub_vv_64f(VV_PARAMS(double)) { return contiguousKernel<Sub>(vv(VV_ARGS)); }
}
