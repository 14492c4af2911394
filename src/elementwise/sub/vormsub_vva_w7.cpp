// vormSub_vva: the kernels for contiguous elements, double precision.

#include "elementwise/calls.hpp"
#include "elementwise/shapes/vva.hpp"

using namespace vorm;
using namespace vorm::elementwise;

extern "C" {

VormStatus n8_ownvormSub_vva_64f(VVA_PARAMS(double)) { return contiguousKernel<Sub>(vva(VVA_ARGS)); }
VormStatus n8_ownvormSub_vva_64f_L(VVA_PARAMS_L(double)) { return contiguousKernel<Sub>(vvaL(VVA_ARGS_L)); }
}
