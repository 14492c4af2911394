// vormMul_mat: the kernels for contiguous elements, single precision.

#include "products/mam.hpp"

using namespace vorm;

extern "C" {

VormStatus n8_ownvormMul_mat_32f(MAM_PARAMS(float)) { return mamContiguous<Mt>(MAM_ARGS); }
VormStatus n8_ownvormMul_mat_32f_L(MAM_PARAMS_L(float)) { return mamContiguousL<Mt>(MAM_ARGS_L); }

}
