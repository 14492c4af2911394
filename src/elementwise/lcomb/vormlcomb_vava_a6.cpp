// vormLComb_vava: the kernels for contiguous elements, single precision.

#include "elementwise/calls.hpp"
#include "elementwise/shapes/lcomb_vava.hpp"

using namespace vorm;
using namespace vorm::elementwise;

extern "C" {

VormStatus n8_ownvormLComb_vava_32f(LCOMB_VAVA_PARAMS(float))
{
    return contiguousKernel<LComb<float>>(lCombVava(LCOMB_VAVA_ARGS));
}
VormStatus n8_ownvormLComb_vava_32f_L(LCOMB_VAVA_PARAMS_L(float))
{
    return contiguousKernel<LComb<float>>(lCombVavaL(LCOMB_VAVA_ARGS_L));
}
}
