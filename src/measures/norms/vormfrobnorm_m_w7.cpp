// vormFrobNorm_m: the kernel for contiguous elements, double precision.

#include "measures/calls.hpp"
#include "measures/norms/frobnorm.hpp"

using namespace vorm;
using namespace vorm::measures;

extern "C" {

VormStatus n8_ownvormFrobNorm_m_64f(FROB_M_PARAMS(double)) { return contiguousKernel<Norm>(frobNormM(FROB_M_ARGS)); }
}
