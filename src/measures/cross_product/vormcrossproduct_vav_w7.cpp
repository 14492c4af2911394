// vormCrossProduct_vav: the kernels for contiguous elements, double precision.

#include "measures/cross.hpp"
#include "measures/cross_product.hpp"

using namespace vorm;
using namespace vorm::measures;

extern "C" {

VormStatus n8_ownvormCrossProduct_vav_64f(CROSS_VAV_PARAMS(double))
{
    return contiguousCross(crossVav(CROSS_VAV_ARGS));
}
VormStatus n8_ownvormCrossProduct_vav_64f_L(CROSS_VAV_PARAMS_L(double))
{
    return contiguousCross(crossVavL(CROSS_VAV_ARGS_L));
}
}
