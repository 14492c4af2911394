// vormDotProduct_vv: the kernel for contiguous elements, double precision.

#include "measures/calls.hpp"
#include "measures/dot/dot.hpp"

using namespace vorm;
using namespace vorm::measures;

extern "C" {

VormStatus n8_ownvormDotProduct_vv_64f(DOT_VV_PARAMS(double)) { return contiguousKernel<Dot>(dotVv(DOT_VV_ARGS)); }
}
