// vormSub_vaca: the kernels for contiguous elements, double precision.

#include "elementwise/vaca.hpp"

using namespace vorm;

extern "C" {

VormStatus n8_ownvormSub_vaca_64f(VACA_PARAMS(double)) { return vacaContiguous<Sub>(VACA_ARGS); }
VormStatus n8_ownvormSub_vaca_64f_L(VACA_PARAMS_L(double)) { return vacaContiguousL<Sub>(VACA_ARGS_L); }
}
