// vormMul_tta: the kernels for contiguous elements, single precision.

#include "products/mma.hpp"

using namespace vorm;

extern "C" {

VormStatus n8_ownvormMul_tta_32f(MMA_PARAMS(float)) { return mmaContiguous<Tt>(MMA_ARGS); }
VormStatus n8_ownvormMul_tta_32f_L(MMA_PARAMS_L(float)) { return mmaContiguousL<Tt, Bodies::none>(MMA_ARGS_L); }

}
