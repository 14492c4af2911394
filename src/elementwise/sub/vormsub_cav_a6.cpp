// vormSub_cav: the kernels for contiguous elements, single precision.

#include "elementwise/calls.hpp"
#include "elementwise/shapes/vca.hpp"

using namespace vorm;
using namespace vorm::elementwise;

extern "C" {

VormStatus n8_ownvormSub_cav_32f(VCA_PARAMS(float)) { return contiguousKernel<SubFrom>(vca(VCA_ARGS)); }
VormStatus n8_ownvormSub_cav_32f_L(VCA_PARAMS_L(float)) { return contiguousKernel<SubFrom>(vcaL(VCA_ARGS_L)); }
}
