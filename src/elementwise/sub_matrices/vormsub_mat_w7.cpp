// vormSub_mat: the kernels for contiguous elements, double precision.

#include "elementwise/matrix_calls.hpp"
#include "elementwise/shapes/mam.hpp"

using namespace vorm;
using namespace vorm::elementwise;

extern "C" {

VormStatus n8_ownvormSub_mat_64f(MAM_PARAMS(double)) { return contiguousKernel<Sub>(mam<Mt>(MAM_ARGS)); }
VormStatus n8_ownvormSub_mat_64f_L(MAM_PARAMS_L(double)) { return contiguousKernel<Sub>(mamL<Mt>(MAM_ARGS_L)); }
}
