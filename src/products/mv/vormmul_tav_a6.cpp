// vormMul_tav: the kernels for contiguous elements, single precision.

#include "products/mav.hpp"

using namespace vorm;

extern "C" {

VormStatus n8_ownvormMul_tav_32f(MAV_PARAMS(float)) { return mavContiguous<Turned>(MAV_ARGS); }
VormStatus n8_ownvormMul_tav_32f_L(MAV_PARAMS_L(float)) { return mavContiguousL<Turned>(MAV_ARGS_L); }
}
