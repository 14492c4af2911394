// vormMul_mta: the kernels for contiguous elements, single precision.

#include "products/matrix_calls.hpp"
#include "products/shapes/mma.hpp"

using namespace vorm;
using namespace vorm::products;

extern "C" {

VormStatus n8_ownvormMul_mta_32f(MMA_PARAMS(float)) { return contiguousKernel<Mt>(mma<Mt>(MMA_ARGS)); }
VormStatus n8_ownvormMul_mta_32f_L(MMA_PARAMS_L(float))
{
    return contiguousKernel<Mt, Bodies::none>(mmaL<Mt>(MMA_ARGS_L));
}
}
