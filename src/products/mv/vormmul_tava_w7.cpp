// vormMul_tava: the kernels for contiguous elements, double precision.

#include "products/mava.hpp"
#include "products/vector_calls.hpp"

using namespace vorm;

extern "C" {

VormStatus n8_ownvormMul_tava_64f(MAVA_PARAMS(double)) { return contiguousKernel<Turned>(mava<Turned>(MAVA_ARGS)); }
VormStatus n8_ownvormMul_tava_64f_L(MAVA_PARAMS_L(double))
{
    return contiguousKernel<Turned, Bodies::none>(mavaL<Turned>(MAVA_ARGS_L));
}
}
