// vormLComb_vv: the kernel for contiguous elements, double precision.

#include "elementwise/calls.hpp"
#include "elementwise/shapes/lcomb_vv.hpp"

using namespace vorm;
using namespace vorm::elementwise;

extern "C" {

VormStatus n8_ownvormLComb_vv_64f(LCOMB_VV_PARAMS(double))
{
    return contiguousKernel<LComb<double>>(lCombVv(LCOMB_VV_ARGS));
}
}
