// vormMul_tata: the kernels for contiguous elements, single precision.

#include "products/matrix_calls.hpp"
#include "products/shapes/mama.hpp"

using namespace vorm;
using namespace vorm::products;

extern "C" {

VormStatus n8_ownvormMul_tata_32f(MAMA_PARAMS(float)) { return contiguousKernel<Tt>(mama<Tt>(MAMA_ARGS)); }
VormStatus n8_ownvormMul_tata_32f_L(MAMA_PARAMS_L(float)) { return contiguousKernel<Tt>(mamaL<Tt>(MAMA_ARGS_L)); }
}
