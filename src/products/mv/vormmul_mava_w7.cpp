// vormMul_mava: the kernels for contiguous elements, double precision.

#include "products/shapes/mava.hpp"
#include "products/vector_calls.hpp"

using namespace vorm;
using namespace vorm::products;

extern "C" {

VormStatus n8_ownvormMul_mava_64f(MAVA_PARAMS(double)) { return contiguousKernel<AsStored>(mava<AsStored>(MAVA_ARGS)); }
VormStatus n8_ownvormMul_mava_64f_L(MAVA_PARAMS_L(double))
{
    return contiguousKernel<AsStored>(mavaL<AsStored>(MAVA_ARGS_L));
}
}
