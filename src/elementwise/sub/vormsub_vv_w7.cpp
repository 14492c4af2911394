// vormSub_vv: the kernel for contiguous elements, double precision.

#include "elementwise/vv.hpp"

using namespace vorm;

extern "C" {

VormStatus n8_ownvormSub_vv_64f(VV_PARAMS(double)) { return vvContiguous<Sub>(VV_ARGS); }
}
