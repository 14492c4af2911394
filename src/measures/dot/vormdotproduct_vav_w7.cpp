// vormDotProduct_vav: the kernels for contiguous elements, double precision.

#include "measures/calls.hpp"
#include "measures/dot/dot.hpp"

using namespace vorm;
using namespace vorm::measures;

extern "C" {

VormStatus n8_ownvormDotProduct_vav_64f(DOT_VAV_PARAMS(double)) { return contiguousKernel<Dot>(dotVav(DOT_VAV_ARGS)); }
VormStatus n8_ownvormDotProduct_vav_64f_L(DOT_VAV_PARAMS_L(double))
{
    return contiguousKernel<Dot>(dotVavL(DOT_VAV_ARGS_L));
}
}
