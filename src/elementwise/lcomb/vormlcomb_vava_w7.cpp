// vormLComb_vava: the kernels for contiguous elements, double precision.

#include "elementwise/calls.hpp"
#include "elementwise/shapes/lcomb_vava.hpp"

using namespace vorm;
using namespace vorm::elementwise;

extern "C" {

VormStatus n8_ownvormLComb_vava_64f(LCOMB_VAVA_PARAMS(double))
{
    return contiguousKernel<LComb<double>>(lCombVava(LCOMB_VAVA_ARGS));
}
VormStatus n8_ownvormLComb_vava_64f_L(LCOMB_VAVA_PARAMS_L(double))
{
    return contiguousKernel<LComb<double>>(lCombVavaL(LCOMB_VAVA_ARGS_L));
}
}
