// vormMul_mat: the kernels for contiguous elements, double precision.

#include "products/matrix_calls.hpp"
#include "products/shapes/mam.hpp"

using namespace vorm;
using namespace vorm::products;

extern "C" {

VormStatus n8_ownvormMul_mat_64f(MAM_PARAMS(double)) { return contiguousKernel<Mt>(mam<Mt>(MAM_ARGS)); }
VormStatus n8_ownvormMul_mat_64f_L(MAM_PARAMS_L(double)) { return contiguousKernel<Mt>(mamL<Mt>(MAM_ARGS_L)); }
}
