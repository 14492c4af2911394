// vormDet_m: the kernel for contiguous elements, double precision.

#include "factor/det/det_calls.hpp"

using namespace vorm;
using namespace vorm::factor;

extern "C" {

VormStatus n8_ownvormDet_m_64f(DET_M_PARAMS(double)) { return contiguousKernel(detM(DET_M_ARGS)); }
}
