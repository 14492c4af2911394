// vormAdd_vav: the kernels for contiguous elements, double precision.

#include "elementwise/calls.hpp"
#include "elementwise/shapes/vav.hpp"

using namespace vorm;
using namespace vorm::elementwise;

extern "C" {

VormStatus n8_ownvormAdd_vav_64f(VAV_PARAMS(double)) { return contiguousKernel<Add>(vav(VAV_ARGS)); }
VormStatus n8_ownvormAdd_vav_64f_L(VAV_PARAMS_L(double)) { return contiguousKernel<Add>(vavL(VAV_ARGS_L)); }
}
