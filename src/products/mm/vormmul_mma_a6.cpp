// vormMul_mma: the kernels for contiguous elements, single precision.

#include "products/matrix_calls.hpp"
#include "products/shapes/mma.hpp"

using namespace vorm;
using namespace vorm::products;

extern "C" {

VormStatus n8_ownvormMul_mma_32f(MMA_PARAMS(float)) { return contiguousKernel<Mm>(mma<Mm>(MMA_ARGS)); }
VormStatus n8_ownvormMul_mma_32f_L(MMA_PARAMS_L(float)) { return contiguousKernel<Mm>(mmaL<Mm>(MMA_ARGS_L)); }
}
