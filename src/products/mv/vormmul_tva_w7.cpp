// vormMul_tva: the kernels for contiguous elements, double precision.

#include "products/shapes/mva.hpp"
#include "products/vector_calls.hpp"

using namespace vorm;
using namespace vorm::products;

extern "C" {

VormStatus n8_ownvormMul_tva_64f(MVA_PARAMS(double))
{
    return contiguousKernel<AsTransposed>(mva<AsTransposed>(MVA_ARGS));
}
VormStatus n8_ownvormMul_tva_64f_L(MVA_PARAMS_L(double))
{
    return contiguousKernel<AsTransposed, Bodies::none>(mvaL<AsTransposed>(MVA_ARGS_L));
}
}
