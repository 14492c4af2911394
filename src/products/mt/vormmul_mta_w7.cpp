// vormMul_mta: the kernels for contiguous elements, double precision.

#include "products/mma.hpp"

using namespace vorm;

extern "C" {

VormStatus n8_ownvormMul_mta_64f(MMA_PARAMS(double)) { return mmaContiguous<Mt>(MMA_ARGS); }
VormStatus n8_ownvormMul_mta_64f_L(MMA_PARAMS_L(double)) { return mmaContiguousL<Mt>(MMA_ARGS_L); }

}
