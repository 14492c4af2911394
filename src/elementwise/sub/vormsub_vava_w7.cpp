// vormSub_vava: the kernels for contiguous elements, double precision.

#include "elementwise/vava.hpp"

using namespace vorm;

extern "C" {

VormStatus n8_ownvormSub_vava_64f(VAVA_PARAMS(double)) { return vavaContiguous<Sub>(VAVA_ARGS); }
VormStatus n8_ownvormSub_vava_64f_L(VAVA_PARAMS_L(double)) { return vavaContiguousL<Sub>(VAVA_ARGS_L); }
}
