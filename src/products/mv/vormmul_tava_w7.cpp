// vormMul_tava: the kernels for contiguous elements, double precision.

#include "products/shapes/mava.hpp"
#include "products/vector_calls.hpp"

using namespace vorm;
using namespace vorm::products;

extern "C" {

VormStatus n8_ownvormMul_tava_64f(MAVA_PARAMS(double))
{
    return contiguousKernel<AsTransposed>(mava<AsTransposed>(MAVA_ARGS));
}
VormStatus n8_ownvormMul_tava_64f_L(MAVA_PARAMS_L(double))
{
    return contiguousKernel<AsTransposed, Bodies::none>(mavaL<AsTransposed>(MAVA_ARGS_L));
}
}
