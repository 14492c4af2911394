// vormDotProduct_vava: the kernels for contiguous elements, single precision.

#include "measures/calls.hpp"
#include "measures/dot/dot.hpp"

using namespace vorm;
using namespace vorm::measures;

extern "C" {

VormStatus n8_ownvormDotProduct_vava_32f(DOT_VAVA_PARAMS(float))
{
    return contiguousKernel<Dot>(dotVava(DOT_VAVA_ARGS));
}
VormStatus n8_ownvormDotProduct_vava_32f_L(DOT_VAVA_PARAMS_L(float))
{
    return contiguousKernel<Dot>(dotVavaL(DOT_VAVA_ARGS_L));
}
}
