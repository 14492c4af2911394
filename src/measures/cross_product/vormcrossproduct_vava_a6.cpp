// vormCrossProduct_vava: the kernels for contiguous elements, single precision.

#include "measures/cross.hpp"
#include "measures/cross_product.hpp"

using namespace vorm;
using namespace vorm::measures;

extern "C" {

VormStatus n8_ownvormCrossProduct_vava_32f(CROSS_VAVA_PARAMS(float))
{
    return contiguousCross(crossVava(CROSS_VAVA_ARGS));
}
VormStatus n8_ownvormCrossProduct_vava_32f_L(CROSS_VAVA_PARAMS_L(float))
{
    return contiguousCross(crossVavaL(CROSS_VAVA_ARGS_L));
}
}
