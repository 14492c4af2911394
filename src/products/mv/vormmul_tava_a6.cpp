// vormMul_tava: the kernels for contiguous elements, single precision.

#include "products/mava.hpp"

using namespace vorm;

extern "C" {

VormStatus n8_ownvormMul_tava_32f(MAVA_PARAMS(float)) { return mavaContiguous<Turned>(MAVA_ARGS); }
VormStatus n8_ownvormMul_tava_32f_L(MAVA_PARAMS_L(float)) { return mavaContiguousL<Turned>(MAVA_ARGS_L); }
}
