// vormCrossProduct_vav: the kernels for contiguous elements, single precision.

#include "measures/cross.hpp"
#include "measures/cross_product.hpp"

using namespace vorm;
using namespace vorm::measures;

extern "C" {

VormStatus n8_ownvormCrossProduct_vav_32f(CROSS_VAV_PARAMS(float)) { return contiguousCross(crossVav(CROSS_VAV_ARGS)); }
VormStatus n8_ownvormCrossProduct_vav_32f_L(CROSS_VAV_PARAMS_L(float))
{
    return contiguousCross(crossVavL(CROSS_VAV_ARGS_L));
}
}
