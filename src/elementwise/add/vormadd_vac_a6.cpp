// vormAdd_vac: the kernels for contiguous elements, single precision.

#include "elementwise/calls.hpp"
#include "elementwise/shapes/vac.hpp"

using namespace vorm;
using namespace vorm::elementwise;

extern "C" {

VormStatus n8_ownvormAdd_vac_32f(VAC_PARAMS(float)) { return contiguousKernel<Add>(vac(VAC_ARGS)); }
VormStatus n8_ownvormAdd_vac_32f_L(VAC_PARAMS_L(float)) { return contiguousKernel<Add>(vacL(VAC_ARGS_L)); }
}
