// vormSub_vaca: the kernels for contiguous elements, single precision.

#include "elementwise/calls.hpp"
#include "elementwise/shapes/vaca.hpp"

using namespace vorm;
using namespace vorm::elementwise;

extern "C" {

VormStatus n8_ownvormSub_vaca_32f(VACA_PARAMS(float)) { return contiguousKernel<Sub>(vaca(VACA_ARGS)); }
VormStatus n8_ownvormSub_vaca_32f_L(VACA_PARAMS_L(float)) { return contiguousKernel<Sub>(vacaL(VACA_ARGS_L)); }
}
