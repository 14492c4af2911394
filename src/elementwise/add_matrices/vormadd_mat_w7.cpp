// vormAdd_mat: the kernels for contiguous elements, double precision.

#include "elementwise/matrix_calls.hpp"
#include "elementwise/shapes/mam.hpp"

using namespace vorm;
using namespace vorm::elementwise;

extern "C" {

VormStatus n8_ownvormAdd_mat_64f(MAM_PARAMS(double)) { return contiguousKernel<Add>(mam<Mt>(MAM_ARGS)); }
VormStatus n8_ownvormAdd_mat_64f_L(MAM_PARAMS_L(double)) { return contiguousKernel<Add>(mamL<Mt>(MAM_ARGS_L)); }
}
