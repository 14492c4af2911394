// vormDotProduct_vv: the kernel for contiguous elements, single precision.

#include "measures/calls.hpp"
#include "measures/dot/dot.hpp"

using namespace vorm;
using namespace vorm::measures;

extern "C" {

VormStatus n8_ownvormDotProduct_vv_32f(DOT_VV_PARAMS(float)) { return contiguousKernel<Dot>(dotVv(DOT_VV_ARGS)); }
}
