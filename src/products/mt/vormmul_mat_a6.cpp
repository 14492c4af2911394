// vormMul_mat: the kernels for contiguous elements, single precision.

#include "products/matrix_calls.hpp"
#include "products/shapes/mam.hpp"

using namespace vorm;
using namespace vorm::products;

extern "C" {

VormStatus n8_ownvormMul_mat_32f(MAM_PARAMS(float)) { return contiguousKernel<Mt>(mam<Mt>(MAM_ARGS)); }
VormStatus n8_ownvormMul_mat_32f_L(MAM_PARAMS_L(float)) { return contiguousKernel<Mt>(mamL<Mt>(MAM_ARGS_L)); }
}
