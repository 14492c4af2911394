// vormMul_tta: the kernels for contiguous elements, double precision.

#include "products/matrix_calls.hpp"
#include "products/shapes/mma.hpp"

using namespace vorm;
using namespace vorm::products;

extern "C" {

VormStatus n8_ownvormMul_tta_64f(MMA_PARAMS(double)) { return contiguousKernel<Tt>(mma<Tt>(MMA_ARGS)); }
VormStatus n8_ownvormMul_tta_64f_L(MMA_PARAMS_L(double))
{
    return contiguousKernel<Tt, Bodies::none>(mmaL<Tt>(MMA_ARGS_L));
}
}
