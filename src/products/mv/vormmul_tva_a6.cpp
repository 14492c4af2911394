// vormMul_tva: the kernels for contiguous elements, single precision.

#include "products/shapes/mva.hpp"
#include "products/vector_calls.hpp"

using namespace vorm;
using namespace vorm::products;

extern "C" {

VormStatus n8_ownvormMul_tva_32f(MVA_PARAMS(float))
{
    return contiguousKernel<AsTransposed>(mva<AsTransposed>(MVA_ARGS));
}
VormStatus n8_ownvormMul_tva_32f_L(MVA_PARAMS_L(float))
{
    return contiguousKernel<AsTransposed, Bodies::none>(mvaL<AsTransposed>(MVA_ARGS_L));
}
}
