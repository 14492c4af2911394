// vormMul_vac: the kernels for contiguous elements, single precision.

#include "elementwise/calls.hpp"
#include "products/constants/shapes.hpp"

using namespace vorm;
using namespace vorm::elementwise;

extern "C" {

VormStatus n8_ownvormMul_vac_32f(VAC_PARAMS(float)) { return contiguousKernel<Mul>(vac(VAC_ARGS)); }
VormStatus n8_ownvormMul_vac_32f_L(VAC_PARAMS_L(float)) { return contiguousKernel<Mul>(vacL(VAC_ARGS_L)); }
}
