// vormSub_cava: the kernels for contiguous elements, double precision.

#include "elementwise/vaca.hpp"

using namespace vorm;

extern "C" {

VormStatus n8_ownvormSub_cava_64f(VACA_PARAMS(double)) { return vacaContiguous<SubFrom>(VACA_ARGS); }
VormStatus n8_ownvormSub_cava_64f_L(VACA_PARAMS_L(double)) { return vacaContiguousL<SubFrom>(VACA_ARGS_L); }
}
