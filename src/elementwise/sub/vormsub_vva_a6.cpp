// vormSub_vva: the kernels for contiguous elements, single precision.

#include "elementwise/calls.hpp"
#include "elementwise/shapes/vva.hpp"

using namespace vorm;
using namespace vorm::elementwise;

extern "C" {

VormStatus n8_ownvormSub_vva_32f(VVA_PARAMS(float)) { return contiguousKernel<Sub>(vva(VVA_ARGS)); }
VormStatus n8_ownvormSub_vva_32f_L(VVA_PARAMS_L(float)) { return contiguousKernel<Sub>(vvaL(VVA_ARGS_L)); }
}
