// vormAdd_vav: the kernels for contiguous elements, single precision.

#include "elementwise/calls.hpp"
#include "elementwise/shapes/vav.hpp"

using namespace vorm;
using namespace vorm::elementwise;

extern "C" {

VormStatus n8_ownvormAdd_vav_32f(VAV_PARAMS(float)) { return contiguousKernel<Add>(vav(VAV_ARGS)); }
VormStatus n8_ownvormAdd_vav_32f_L(VAV_PARAMS_L(float)) { return contiguousKernel<Add>(vavL(VAV_ARGS_L)); }
}
