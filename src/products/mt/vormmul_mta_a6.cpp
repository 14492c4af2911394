// vormMul_mta: the kernels for contiguous elements, single precision.

#include "products/mma.hpp"

using namespace vorm;

extern "C" {

VormStatus n8_ownvormMul_mta_32f(MMA_PARAMS(float)) { return mmaContiguous<Mt>(MMA_ARGS); }
VormStatus n8_ownvormMul_mta_32f_L(MMA_PARAMS_L(float)) { return mmaContiguousL<Mt, Bodies::none>(MMA_ARGS_L); }

}
