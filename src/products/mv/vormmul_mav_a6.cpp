// vormMul_mav: the kernels for contiguous elements, single precision.

#include "products/mav.hpp"

using namespace vorm;

extern "C" {

VormStatus n8_ownvormMul_mav_32f(MAV_PARAMS(float)) { return mavContiguous<AsStored>(MAV_ARGS); }
VormStatus n8_ownvormMul_mav_32f_L(MAV_PARAMS_L(float)) { return mavContiguousL<AsStored>(MAV_ARGS_L); }
}
