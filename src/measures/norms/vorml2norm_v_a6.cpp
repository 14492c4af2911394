// vormL2Norm_v: the kernel for contiguous elements, single precision.

#include "measures/calls.hpp"
#include "measures/norms/l2norm.hpp"

using namespace vorm;
using namespace vorm::measures;

extern "C" {

VormStatus n8_ownvormL2Norm_v_32f(L2_V_PARAMS(float)) { return contiguousKernel<Norm>(l2NormV(L2_V_ARGS)); }
}
