// vormAdd_vava: the kernels for contiguous elements, double precision.

#include "elementwise/vava.hpp"

using namespace vorm;

extern "C" {

VormStatus n8_ownvormAdd_vava_64f(VAVA_PARAMS(double)) { return vavaContiguous<Add>(VAVA_ARGS); }
VormStatus n8_ownvormAdd_vava_64f_L(VAVA_PARAMS_L(double)) { return vavaContiguousL<Add>(VAVA_ARGS_L); }
}
