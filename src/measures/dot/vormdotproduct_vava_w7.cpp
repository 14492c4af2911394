// vormDotProduct_vava: the kernels for contiguous elements, double precision.

#include "measures/calls.hpp"
#include "measures/dot/dot.hpp"

using namespace vorm;
using namespace vorm::measures;

extern "C" {

VormStatus n8_ownvormDotProduct_vava_64f(DOT_VAVA_PARAMS(double))
{
    return contiguousKernel<Dot>(dotVava(DOT_VAVA_ARGS));
}
VormStatus n8_ownvormDotProduct_vava_64f_L(DOT_VAVA_PARAMS_L(double))
{
    return contiguousKernel<Dot>(dotVavaL(DOT_VAVA_ARGS_L));
}
}
