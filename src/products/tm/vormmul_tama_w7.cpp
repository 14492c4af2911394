// vormMul_tama: the kernels for contiguous elements, double precision.

#include "products/matrix_calls.hpp"
#include "products/shapes/mama.hpp"

using namespace vorm;
using namespace vorm::products;

extern "C" {

VormStatus n8_ownvormMul_tama_64f(MAMA_PARAMS(double)) { return contiguousKernel<Tm>(mama<Tm>(MAMA_ARGS)); }
VormStatus n8_ownvormMul_tama_64f_L(MAMA_PARAMS_L(double)) { return contiguousKernel<Tm>(mamaL<Tm>(MAMA_ARGS_L)); }
}
