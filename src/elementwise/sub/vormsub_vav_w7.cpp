// vormSub_vav: the kernels for contiguous elements, double precision.

#include "elementwise/calls.hpp"
#include "elementwise/shapes/vav.hpp"

using namespace vorm;
using namespace vorm::elementwise;

extern "C" {

VormStatus n8_ownvormSub_vav_64f(VAV_PARAMS(double)) { return contiguousKernel<Sub>(vav(VAV_ARGS)); }
VormStatus n8_ownvormSub_vav_64f_L(VAV_PARAMS_L(double)) { return contiguousKernel<Sub>(vavL(VAV_ARGS_L)); }
}
