// vormMul_mava: the kernels for contiguous elements, single precision.

#include "products/mava.hpp"

using namespace vorm;

extern "C" {

VormStatus n8_ownvormMul_mava_32f(MAVA_PARAMS(float)) { return mavaContiguous<AsStored>(MAVA_ARGS); }
VormStatus n8_ownvormMul_mava_32f_L(MAVA_PARAMS_L(float)) { return mavaContiguousL<AsStored>(MAVA_ARGS_L); }
}
