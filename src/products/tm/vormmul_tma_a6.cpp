// vormMul_tma: the kernels for contiguous elements, single precision.

#include "products/mma.hpp"

using namespace vorm;

extern "C" {

VormStatus n8_ownvormMul_tma_32f(MMA_PARAMS(float)) { return mmaContiguous<Tm, Bodies::upTo5>(MMA_ARGS); }
VormStatus n8_ownvormMul_tma_32f_L(MMA_PARAMS_L(float)) { return mmaContiguousL<Tm, Bodies::upTo5>(MMA_ARGS_L); }

}
