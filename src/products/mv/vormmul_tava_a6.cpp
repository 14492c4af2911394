// vormMul_tava: the kernels for contiguous elements, single precision.

#include "products/shapes/mava.hpp"
#include "products/vector_calls.hpp"

using namespace vorm;
using namespace vorm::products;

extern "C" {

VormStatus n8_ownvormMul_tava_32f(MAVA_PARAMS(float))
{
    return contiguousKernel<AsTransposed>(mava<AsTransposed>(MAVA_ARGS));
}
VormStatus n8_ownvormMul_tava_32f_L(MAVA_PARAMS_L(float))
{
    return contiguousKernel<AsTransposed>(mavaL<AsTransposed>(MAVA_ARGS_L));
}
}
