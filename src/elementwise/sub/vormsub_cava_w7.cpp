// vormSub_cava: the kernels for contiguous elements, double precision.

#include "elementwise/calls.hpp"
#include "elementwise/shapes/vaca.hpp"

using namespace vorm;
using namespace vorm::elementwise;

extern "C" {

VormStatus n8_ownvormSub_cava_64f(VACA_PARAMS(double)) { return contiguousKernel<SubFrom>(vaca(VACA_ARGS)); }
VormStatus n8_ownvormSub_cava_64f_L(VACA_PARAMS_L(double)) { return contiguousKernel<SubFrom>(vacaL(VACA_ARGS_L)); }
}
