// vormSub_vv: the kernel for contiguous elements, single precision.

#include "elementwise/vv.hpp"

using namespace vorm;

extern "C" {

VormStatus n8_ownvormSub_vv_32f(VV_PARAMS(float)) { return vvContiguous<Sub>(VV_ARGS); }
}
