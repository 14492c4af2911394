// vormSub_cva: the kernels for contiguous elements, double precision.

#include "elementwise/calls.hpp"
#include "elementwise/shapes/vac.hpp"

using namespace vorm;
using namespace vorm::elementwise;

extern "C" {

VormStatus n8_ownvormSub_cva_64f(VAC_PARAMS(double)) { return contiguousKernel<SubFrom>(vac(VAC_ARGS)); }
VormStatus n8_ownvormSub_cva_64f_L(VAC_PARAMS_L(double)) { return contiguousKernel<SubFrom>(vacL(VAC_ARGS_L)); }
}
