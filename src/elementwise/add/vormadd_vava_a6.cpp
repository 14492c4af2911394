// vormAdd_vava: the kernels for contiguous elements, single precision.

#include "elementwise/vava.hpp"

using namespace vorm;

extern "C" {

VormStatus n8_ownvormAdd_vava_32f(VAVA_PARAMS(float)) { return vavaContiguous<Add>(VAVA_ARGS); }
VormStatus n8_ownvormAdd_vava_32f_L(VAVA_PARAMS_L(float)) { return vavaContiguousL<Add>(VAVA_ARGS_L); }
}
