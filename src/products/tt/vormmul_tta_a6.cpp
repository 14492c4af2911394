// vormMul_tta: the kernels for contiguous elements, single precision.

#include "products/matrix_calls.hpp"
#include "products/shapes/mma.hpp"

using namespace vorm;
using namespace vorm::products;

extern "C" {

VormStatus n8_ownvormMul_tta_32f(MMA_PARAMS(float)) { return contiguousKernel<Tt>(mma<Tt>(MMA_ARGS)); }
VormStatus n8_ownvormMul_tta_32f_L(MMA_PARAMS_L(float))
{
    return contiguousKernel<Tt, Bodies::none>(mmaL<Tt>(MMA_ARGS_L));
}
}
