// vormCrossProduct_vv: the kernel for contiguous elements, single precision.

#include "measures/cross.hpp"
#include "measures/cross_product.hpp"

using namespace vorm;
using namespace vorm::measures;

extern "C" {

VormStatus n8_ownvormCrossProduct_vv_32f(CROSS_VV_PARAMS(float)) { return contiguousCross(crossVv(CROSS_VV_ARGS)); }
}
