// vormSub_cva: the kernels for contiguous elements, single precision.

#include "elementwise/calls.hpp"
#include "elementwise/shapes/vac.hpp"

using namespace vorm;
using namespace vorm::elementwise;

extern "C" {

VormStatus n8_ownvormSub_cva_32f(VAC_PARAMS(float)) { return contiguousKernel<SubFrom>(vac(VAC_ARGS)); }
VormStatus n8_ownvormSub_cva_32f_L(VAC_PARAMS_L(float)) { return contiguousKernel<SubFrom>(vacL(VAC_ARGS_L)); }
}
