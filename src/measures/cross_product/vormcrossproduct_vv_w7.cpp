// vormCrossProduct_vv: the kernel for contiguous elements, double precision.

#include "measures/cross.hpp"
#include "measures/cross_product.hpp"

using namespace vorm;
using namespace vorm::measures;

extern "C" {

VormStatus n8_ownvormCrossProduct_vv_64f(CROSS_VV_PARAMS(double)) { return contiguousCross(crossVv(CROSS_VV_ARGS)); }
}
