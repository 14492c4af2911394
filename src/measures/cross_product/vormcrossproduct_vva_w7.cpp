// vormCrossProduct_vva: the kernels for contiguous elements, double precision.

#include "measures/cross.hpp"
#include "measures/cross_product.hpp"

using namespace vorm;
using namespace vorm::measures;

extern "C" {

VormStatus n8_ownvormCrossProduct_vva_64f(CROSS_VVA_PARAMS(double))
{
    return contiguousCross(crossVva(CROSS_VVA_ARGS));
}
VormStatus n8_ownvormCrossProduct_vva_64f_L(CROSS_VVA_PARAMS_L(double))
{
    return contiguousCross(crossVvaL(CROSS_VVA_ARGS_L));
}
}
