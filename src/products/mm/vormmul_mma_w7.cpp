// vormMul_mma: the kernels for contiguous elements, double precision.

#include "products/matrix_calls.hpp"
#include "products/shapes/mma.hpp"

using namespace vorm;
using namespace vorm::products;

extern "C" {

VormStatus n8_ownvormMul_mma_64f(MMA_PARAMS(double)) { return contiguousKernel<Mm>(mma<Mm>(MMA_ARGS)); }
VormStatus n8_ownvormMul_mma_64f_L(MMA_PARAMS_L(double)) { return contiguousKernel<Mm>(mmaL<Mm>(MMA_ARGS_L)); }
}
