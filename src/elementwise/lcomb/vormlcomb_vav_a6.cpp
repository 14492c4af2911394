// vormLComb_vav: the kernels for contiguous elements, single precision.

#include "elementwise/calls.hpp"
#include "elementwise/shapes/lcomb_vav.hpp"

using namespace vorm;
using namespace vorm::elementwise;

extern "C" {

VormStatus n8_ownvormLComb_vav_32f(LCOMB_VAV_PARAMS(float))
{
    return contiguousKernel<LComb<float>>(lCombVav(LCOMB_VAV_ARGS));
}
VormStatus n8_ownvormLComb_vav_32f_L(LCOMB_VAV_PARAMS_L(float))
{
    return contiguousKernel<LComb<float>>(lCombVavL(LCOMB_VAV_ARGS_L));
}
}
