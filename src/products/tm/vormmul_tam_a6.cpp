// vormMul_tam: the kernels for contiguous elements, single precision.

#include "products/matrix_calls.hpp"
#include "products/shapes/mam.hpp"

using namespace vorm;
using namespace vorm::products;

extern "C" {

VormStatus n8_ownvormMul_tam_32f(MAM_PARAMS(float)) { return contiguousKernel<Tm, Bodies::upTo5>(mam<Tm>(MAM_ARGS)); }
VormStatus n8_ownvormMul_tam_32f_L(MAM_PARAMS_L(float))
{
    return contiguousKernel<Tm, Bodies::upTo5>(mamL<Tm>(MAM_ARGS_L));
}
}
