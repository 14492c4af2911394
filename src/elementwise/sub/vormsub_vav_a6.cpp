// vormSub_vav: the kernels for contiguous elements, single precision.

#include "elementwise/vav.hpp"

using namespace vorm;

extern "C" {

VormStatus n8_ownvormSub_vav_32f(VAV_PARAMS(float)) { return vavContiguous<Sub>(VAV_ARGS); }
VormStatus n8_ownvormSub_vav_32f_L(VAV_PARAMS_L(float)) { return vavContiguousL<Sub>(VAV_ARGS_L); }
}
