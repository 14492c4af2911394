// vormCrossProduct_vava: the kernels for contiguous elements, double precision.

#include "measures/cross.hpp"
#include "measures/cross_product.hpp"

using namespace vorm;
using namespace vorm::measures;

extern "C" {

VormStatus n8_ownvormCrossProduct_vava_64f(CROSS_VAVA_PARAMS(double))
{
    return contiguousCross(crossVava(CROSS_VAVA_ARGS));
}
VormStatus n8_ownvormCrossProduct_vava_64f_L(CROSS_VAVA_PARAMS_L(double))
{
    return contiguousCross(crossVavaL(CROSS_VAVA_ARGS_L));
}
}
