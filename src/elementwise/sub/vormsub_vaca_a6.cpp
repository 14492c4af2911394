// vormSub_vaca: the kernels for contiguous elements, single precision.

#include "elementwise/vaca.hpp"

using namespace vorm;

extern "C" {

VormStatus n8_ownvormSub_vaca_32f(VACA_PARAMS(float)) { return vacaContiguous<Sub>(VACA_ARGS); }
VormStatus n8_ownvormSub_vaca_32f_L(VACA_PARAMS_L(float)) { return vacaContiguousL<Sub>(VACA_ARGS_L); }
}
