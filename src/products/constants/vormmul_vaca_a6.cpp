// vormMul_vaca: the kernels for contiguous elements, single precision.

#include "elementwise/calls.hpp"
#include "products/constants/shapes.hpp"

using namespace vorm;
using namespace vorm::elementwise;

extern "C" {

VormStatus n8_ownvormMul_vaca_32f(VACA_PARAMS(float)) { return contiguousKernel<Mul>(vaca(VACA_ARGS)); }
VormStatus n8_ownvormMul_vaca_32f_L(VACA_PARAMS_L(float)) { return contiguousKernel<Mul>(vacaL(VACA_ARGS_L)); }
}
