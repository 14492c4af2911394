// vormMul_tma: the kernels for contiguous elements, double precision.

#include "products/mma.hpp"

using namespace vorm;

extern "C" {

VormStatus n8_ownvormMul_tma_64f(MMA_PARAMS(double)) { return mmaContiguous<Tm>(MMA_ARGS); }
VormStatus n8_ownvormMul_tma_64f_L(MMA_PARAMS_L(double)) { return mmaContiguousL<Tm>(MMA_ARGS_L); }

}
