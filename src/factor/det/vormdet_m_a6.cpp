// vormDet_m: the kernel for contiguous elements, single precision.

#include "factor/det/det_calls.hpp"

using namespace vorm;
using namespace vorm::factor;

extern "C" {

VormStatus n8_ownvormDet_m_32f(DET_M_PARAMS(float)) { return contiguousKernel(detM(DET_M_ARGS)); }
}
