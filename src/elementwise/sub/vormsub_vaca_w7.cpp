// vormSub_vaca: the kernels for contiguous elements, double precision.

#include "elementwise/calls.hpp"
#include "elementwise/shapes/vaca.hpp"

using namespace vorm;
using namespace vorm::elementwise;

extern "C" {

VormStatus n8_ownvormSub_vaca_64f(VACA_PARAMS(double)) { return contiguousKernel<Sub>(vaca(VACA_ARGS)); }
VormStatus n8_ownvormSub_vaca_64f_L(VACA_PARAMS_L(double)) { return contiguousKernel<Sub>(vacaL(VACA_ARGS_L)); }
}
