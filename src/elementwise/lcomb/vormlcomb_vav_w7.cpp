// vormLComb_vav: the kernels for contiguous elements, double precision.

#include "elementwise/calls.hpp"
#include "elementwise/shapes/lcomb_vav.hpp"

using namespace vorm;
using namespace vorm::elementwise;

extern "C" {

VormStatus n8_ownvormLComb_vav_64f(LCOMB_VAV_PARAMS(double))
{
    return contiguousKernel<LComb<double>>(lCombVav(LCOMB_VAV_ARGS));
}
VormStatus n8_ownvormLComb_vav_64f_L(LCOMB_VAV_PARAMS_L(double))
{
    return contiguousKernel<LComb<double>>(lCombVavL(LCOMB_VAV_ARGS_L));
}
}
