// vormMul_tma: the kernels for contiguous elements, single precision.

#include "products/matrix_calls.hpp"
#include "products/shapes/mma.hpp"

using namespace vorm;
using namespace vorm::products;

extern "C" {

VormStatus n8_ownvormMul_tma_32f(MMA_PARAMS(float)) { return contiguousKernel<Tm, Bodies::upTo5>(mma<Tm>(MMA_ARGS)); }
VormStatus n8_ownvormMul_tma_32f_L(MMA_PARAMS_L(float))
{
    return contiguousKernel<Tm, Bodies::upTo5>(mmaL<Tm>(MMA_ARGS_L));
}
}
