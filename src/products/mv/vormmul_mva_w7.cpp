// vormMul_mva: the kernels for contiguous elements, double precision.

#include "products/shapes/mva.hpp"
#include "products/vector_calls.hpp"

using namespace vorm;
using namespace vorm::products;

extern "C" {

VormStatus n8_ownvormMul_mva_64f(MVA_PARAMS(double)) { return contiguousKernel<AsStored>(mva<AsStored>(MVA_ARGS)); }
VormStatus n8_ownvormMul_mva_64f_L(MVA_PARAMS_L(double))
{
    return contiguousKernel<AsStored>(mvaL<AsStored>(MVA_ARGS_L));
}
}
