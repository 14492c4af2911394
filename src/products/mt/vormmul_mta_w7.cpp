// vormMul_mta: the kernels for contiguous elements, double precision.

#include "products/matrix_calls.hpp"
#include "products/shapes/mma.hpp"

using namespace vorm;
using namespace vorm::products;

extern "C" {

VormStatus n8_ownvormMul_mta_64f(MMA_PARAMS(double)) { return contiguousKernel<Mt>(mma<Mt>(MMA_ARGS)); }
VormStatus n8_ownvormMul_mta_64f_L(MMA_PARAMS_L(double)) { return contiguousKernel<Mt>(mmaL<Mt>(MMA_ARGS_L)); }
}
