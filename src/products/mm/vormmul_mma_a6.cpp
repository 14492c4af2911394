// vormMul_mma: the kernels for contiguous elements, single precision.

#include "products/mma.hpp"

using namespace vorm;

extern "C" {

VormStatus n8_ownvormMul_mma_32f(MMA_PARAMS(float)) { return mmaContiguous<Mm>(MMA_ARGS); }
VormStatus n8_ownvormMul_mma_32f_L(MMA_PARAMS_L(float)) { return mmaContiguousL<Mm>(MMA_ARGS_L); }

}
