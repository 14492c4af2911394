// vormSub_vava: the kernels for contiguous elements, double precision.

#include "elementwise/calls.hpp"
#include "elementwise/shapes/vava.hpp"

using namespace vorm;
using namespace vorm::elementwise;

extern "C" {

VormStatus n8_ownvormSub_vava_64f(VAVA_PARAMS(double)) { return contiguousKernel<Sub>(vava(VAVA_ARGS)); }
VormStatus n8_ownvormSub_vava_64f_L(VAVA_PARAMS_L(double)) { return contiguousKernel<Sub>(vavaL(VAVA_ARGS_L)); }
}
