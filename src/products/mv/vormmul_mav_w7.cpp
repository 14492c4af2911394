// vormMul_mav: the kernels for contiguous elements, double precision.

#include "products/shapes/mav.hpp"
#include "products/vector_calls.hpp"

using namespace vorm;
using namespace vorm::products;

extern "C" {

VormStatus n8_ownvormMul_mav_64f(MAV_PARAMS(double)) { return contiguousKernel<AsStored>(mav<AsStored>(MAV_ARGS)); }
VormStatus n8_ownvormMul_mav_64f_L(MAV_PARAMS_L(double))
{
    return contiguousKernel<AsStored>(mavL<AsStored>(MAV_ARGS_L));
}
}
