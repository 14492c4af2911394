// vormMul_vca: the kernels for contiguous elements, single precision.

#include "elementwise/calls.hpp"
#include "products/constants/shapes.hpp"

using namespace vorm;
using namespace vorm::elementwise;

extern "C" {

VormStatus n8_ownvormMul_vca_32f(VCA_PARAMS(float)) { return contiguousKernel<Mul>(vca(VCA_ARGS)); }
VormStatus n8_ownvormMul_vca_32f_L(VCA_PARAMS_L(float)) { return contiguousKernel<Mul>(vcaL(VCA_ARGS_L)); }
}
