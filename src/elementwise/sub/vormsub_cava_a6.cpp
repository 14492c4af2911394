// vormSub_cava: the kernels for contiguous elements, single precision.

#include "elementwise/calls.hpp"
#include "elementwise/shapes/vaca.hpp"

using namespace vorm;
using namespace vorm::elementwise;

extern "C" {

VormStatus n8_ownvormSub_cava_32f(VACA_PARAMS(float)) { return contiguousKernel<SubFrom>(vaca(VACA_ARGS)); }
VormStatus n8_ownvormSub_cava_32f_L(VACA_PARAMS_L(float)) { return contiguousKernel<SubFrom>(vacaL(VACA_ARGS_L)); }
}
