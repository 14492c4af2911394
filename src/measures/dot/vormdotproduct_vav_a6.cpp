// vormDotProduct_vav: the kernels for contiguous elements, single precision.

#include "measures/calls.hpp"
#include "measures/dot/dot.hpp"

using namespace vorm;
using namespace vorm::measures;

extern "C" {

VormStatus n8_ownvormDotProduct_vav_32f(DOT_VAV_PARAMS(float)) { return contiguousKernel<Dot>(dotVav(DOT_VAV_ARGS)); }
VormStatus n8_ownvormDotProduct_vav_32f_L(DOT_VAV_PARAMS_L(float))
{
    return contiguousKernel<Dot>(dotVavL(DOT_VAV_ARGS_L));
}
}
