// vormL2Norm_va: the kernels for contiguous elements, single precision.

#include "measures/calls.hpp"
#include "measures/norms/l2norm.hpp"

using namespace vorm;
using namespace vorm::measures;

extern "C" {

VormStatus n8_ownvormL2Norm_va_32f(L2_VA_PARAMS(float)) { return contiguousKernel<Norm>(l2NormVa(L2_VA_ARGS)); }
VormStatus n8_ownvormL2Norm_va_32f_L(L2_VA_PARAMS_L(float)) { return contiguousKernel<Norm>(l2NormVaL(L2_VA_ARGS_L)); }
}
