// vormMul_vac: the kernels for contiguous elements, double precision.

#include "elementwise/calls.hpp"
#include "products/constants/shapes.hpp"

using namespace vorm;
using namespace vorm::elementwise;

extern "C" {

VormStatus n8_ownvormMul_vac_64f(VAC_PARAMS(double)) { return contiguousKernel<Mul>(vac(VAC_ARGS)); }
VormStatus n8_ownvormMul_vac_64f_L(VAC_PARAMS_L(double)) { return contiguousKernel<Mul>(vacL(VAC_ARGS_L)); }
}
