// vormMul_mava: the kernels for contiguous elements, double precision.

#include "products/mava.hpp"

using namespace vorm;

extern "C" {

VormStatus n8_ownvormMul_mava_64f(MAVA_PARAMS(double)) { return mavaContiguous<AsStored>(MAVA_ARGS); }
VormStatus n8_ownvormMul_mava_64f_L(MAVA_PARAMS_L(double)) { return mavaContiguousL<AsStored>(MAVA_ARGS_L); }
}
