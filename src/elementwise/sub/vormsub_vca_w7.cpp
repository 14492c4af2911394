// vormSub_vca: the kernels for contiguous elements, double precision.

#include "elementwise/calls.hpp"
#include "elementwise/shapes/vca.hpp"

using namespace vorm;
using namespace vorm::elementwise;

extern "C" {

VormStatus n8_ownvormSub_vca_64f(VCA_PARAMS(double)) { return contiguousKernel<Sub>(vca(VCA_ARGS)); }
VormStatus n8_ownvormSub_vca_64f_L(VCA_PARAMS_L(double)) { return contiguousKernel<Sub>(vcaL(VCA_ARGS_L)); }
}
