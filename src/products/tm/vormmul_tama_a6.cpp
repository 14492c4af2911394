// vormMul_tama: the kernels for contiguous elements, single precision.

#include "products/matrix_calls.hpp"
#include "products/shapes/mama.hpp"

using namespace vorm;
using namespace vorm::products;

extern "C" {

VormStatus n8_ownvormMul_tama_32f(MAMA_PARAMS(float))
{
    return contiguousKernel<Tm, Bodies::upTo5>(mama<Tm>(MAMA_ARGS));
}
VormStatus n8_ownvormMul_tama_32f_L(MAMA_PARAMS_L(float))
{
    return contiguousKernel<Tm, Bodies::upTo5>(mamaL<Tm>(MAMA_ARGS_L));
}
}
