// vormInvert_m: the kernel for contiguous elements, single precision.

#include "factor/invert/invert_calls.hpp"

using namespace vorm;
using namespace vorm::factor;

extern "C" {

VormStatus n8_ownvormInvert_m_32f(INVERT_M_PARAMS(float)) { return contiguousKernel(invertM(INVERT_M_ARGS)); }
}
