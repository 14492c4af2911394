// vormMul_vca: the kernels for contiguous elements, double precision.

#include "elementwise/calls.hpp"
#include "products/constants/shapes.hpp"

using namespace vorm;
using namespace vorm::elementwise;

extern "C" {

VormStatus n8_ownvormMul_vca_64f(VCA_PARAMS(double)) { return contiguousKernel<Mul>(vca(VCA_ARGS)); }
VormStatus n8_ownvormMul_vca_64f_L(VCA_PARAMS_L(double)) { return contiguousKernel<Mul>(vcaL(VCA_ARGS_L)); }
}
