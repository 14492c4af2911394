// vormSub_vac: the kernels for contiguous elements, single precision.

#include "elementwise/calls.hpp"
#include "elementwise/shapes/vac.hpp"

using namespace vorm;
using namespace vorm::elementwise;

extern "C" {

VormStatus n8_ownvormSub_vac_32f(VAC_PARAMS(float)) { return contiguousKernel<Sub>(vac(VAC_ARGS)); }
VormStatus n8_ownvormSub_vac_32f_L(VAC_PARAMS_L(float)) { return contiguousKernel<Sub>(vacL(VAC_ARGS_L)); }
}
