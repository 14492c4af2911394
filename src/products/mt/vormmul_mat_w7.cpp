// vormMul_mat: the kernels for contiguous elements, double precision.

#include "products/mam.hpp"

using namespace vorm;

extern "C" {

VormStatus n8_ownvormMul_mat_64f(MAM_PARAMS(double)) { return mamContiguous<Mt>(MAM_ARGS); }
VormStatus n8_ownvormMul_mat_64f_L(MAM_PARAMS_L(double)) { return mamContiguousL<Mt>(MAM_ARGS_L); }

}
