// vormMul_tat: the kernels for contiguous elements, single precision.

#include "products/matrix_calls.hpp"
#include "products/shapes/mam.hpp"

using namespace vorm;
using namespace vorm::products;

extern "C" {

VormStatus n8_ownvormMul_tat_32f(MAM_PARAMS(float)) { return contiguousKernel<Tt>(mam<Tt>(MAM_ARGS)); }
VormStatus n8_ownvormMul_tat_32f_L(MAM_PARAMS_L(float)) { return contiguousKernel<Tt>(mamL<Tt>(MAM_ARGS_L)); }
}
