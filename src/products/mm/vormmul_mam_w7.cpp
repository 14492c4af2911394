// vormMul_mam: the kernels for contiguous elements, double precision.

#include "products/matrix_calls.hpp"
#include "products/shapes/mam.hpp"

using namespace vorm;
using namespace vorm::products;

extern "C" {

VormStatus n8_ownvormMul_mam_64f(MAM_PARAMS(double)) { return contiguousKernel<Mm>(mam<Mm>(MAM_ARGS)); }
VormStatus n8_ownvormMul_mam_64f_L(MAM_PARAMS_L(double)) { return contiguousKernel<Mm>(mamL<Mm>(MAM_ARGS_L)); }
}
