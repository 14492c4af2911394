// vormMul_mva: the kernels for contiguous elements, single precision.

#include "products/shapes/mva.hpp"
#include "products/vector_calls.hpp"

using namespace vorm;
using namespace vorm::products;

extern "C" {

VormStatus n8_ownvormMul_mva_32f(MVA_PARAMS(float)) { return contiguousKernel<AsStored>(mva<AsStored>(MVA_ARGS)); }
VormStatus n8_ownvormMul_mva_32f_L(MVA_PARAMS_L(float))
{
    return contiguousKernel<AsStored, Bodies::none>(mvaL<AsStored>(MVA_ARGS_L));
}
}
