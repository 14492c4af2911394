// vormSub_vav: the kernels for contiguous elements, single precision.

#include "elementwise/calls.hpp"
#include "elementwise/shapes/vav.hpp"

using namespace vorm;
using namespace vorm::elementwise;

extern "C" {

VormStatus n8_ownvormSub_vav_32f(VAV_PARAMS(float)) { return contiguousKernel<Sub>(vav(VAV_ARGS)); }
VormStatus n8_ownvormSub_vav_32f_L(VAV_PARAMS_L(float)) { return contiguousKernel<Sub>(vavL(VAV_ARGS_L)); }
}
