// vormMul_mav: the kernels for contiguous elements, single precision.

#include "products/shapes/mav.hpp"
#include "products/vector_calls.hpp"

using namespace vorm;
using namespace vorm::products;

extern "C" {

VormStatus n8_ownvormMul_mav_32f(MAV_PARAMS(float)) { return contiguousKernel<AsStored>(mav<AsStored>(MAV_ARGS)); }
VormStatus n8_ownvormMul_mav_32f_L(MAV_PARAMS_L(float))
{
    return contiguousKernel<AsStored>(mavL<AsStored>(MAV_ARGS_L));
}
}
