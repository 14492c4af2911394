// vormSub_cav: the kernels for contiguous elements, double precision.

#include "elementwise/calls.hpp"
#include "elementwise/shapes/vca.hpp"

using namespace vorm;
using namespace vorm::elementwise;

extern "C" {

VormStatus n8_ownvormSub_cav_64f(VCA_PARAMS(double)) { return contiguousKernel<SubFrom>(vca(VCA_ARGS)); }
VormStatus n8_ownvormSub_cav_64f_L(VCA_PARAMS_L(double)) { return contiguousKernel<SubFrom>(vcaL(VCA_ARGS_L)); }
}
