// vormSub_vav: the kernels for contiguous elements, double precision.

#include "elementwise/vav.hpp"

using namespace vorm;

extern "C" {

VormStatus n8_ownvormSub_vav_64f(VAV_PARAMS(double)) { return vavContiguous<Sub>(VAV_ARGS); }
VormStatus n8_ownvormSub_vav_64f_L(VAV_PARAMS_L(double)) { return vavContiguousL<Sub>(VAV_ARGS_L); }
}
