// vormMul_vaca: the kernels for contiguous elements, double precision.

#include "elementwise/calls.hpp"
#include "products/constants/shapes.hpp"

using namespace vorm;
using namespace vorm::elementwise;

extern "C" {

VormStatus n8_ownvormMul_vaca_64f(VACA_PARAMS(double)) { return contiguousKernel<Mul>(vaca(VACA_ARGS)); }
VormStatus n8_ownvormMul_vaca_64f_L(VACA_PARAMS_L(double)) { return contiguousKernel<Mul>(vacaL(VACA_ARGS_L)); }
}
