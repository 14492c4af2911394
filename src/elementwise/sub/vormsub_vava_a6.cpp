// vormSub_vava: the kernels for contiguous elements, single precision.

#include "elementwise/vava.hpp"

using namespace vorm;

extern "C" {

VormStatus n8_ownvormSub_vava_32f(VAVA_PARAMS(float)) { return vavaContiguous<Sub>(VAVA_ARGS); }
VormStatus n8_ownvormSub_vava_32f_L(VAVA_PARAMS_L(float)) { return vavaContiguousL<Sub>(VAVA_ARGS_L); }
}
