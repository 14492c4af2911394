// vormInvert_m: the kernel for contiguous elements, double precision.

#include "factor/invert/invert_calls.hpp"

using namespace vorm;
using namespace vorm::factor;

extern "C" {

VormStatus n8_ownvormInvert_m_64f(INVERT_M_PARAMS(double)) { return contiguousKernel(invertM(INVERT_M_ARGS)); }
}
