// vormMul_tma: the kernels for contiguous elements, double precision.

#include "products/matrix_calls.hpp"
#include "products/shapes/mma.hpp"

using namespace vorm;
using namespace vorm::products;

extern "C" {

VormStatus n8_ownvormMul_tma_64f(MMA_PARAMS(double)) { return contiguousKernel<Tm>(mma<Tm>(MMA_ARGS)); }
VormStatus n8_ownvormMul_tma_64f_L(MMA_PARAMS_L(double)) { return contiguousKernel<Tm>(mmaL<Tm>(MMA_ARGS_L)); }
}
