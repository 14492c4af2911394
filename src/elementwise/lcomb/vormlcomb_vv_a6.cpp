// vormLComb_vv: the kernel for contiguous elements, single precision.

#include "elementwise/calls.hpp"
#include "elementwise/shapes/lcomb_vv.hpp"

using namespace vorm;
using namespace vorm::elementwise;

extern "C" {

VormStatus n8_ownvormLComb_vv_32f(LCOMB_VV_PARAMS(float))
{
    return contiguousKernel<LComb<float>>(lCombVv(LCOMB_VV_ARGS));
}
}
