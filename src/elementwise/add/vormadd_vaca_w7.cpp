// vormAdd_vaca: the kernels for contiguous elements, double precision.

#include "elementwise/vaca.hpp"

using namespace vorm;

extern "C" {

VormStatus n8_ownvormAdd_vaca_64f(VACA_PARAMS(double)) { return vacaContiguous<Add>(VACA_ARGS); }
VormStatus n8_ownvormAdd_vaca_64f_L(VACA_PARAMS_L(double)) { return vacaContiguousL<Add>(VACA_ARGS_L); }
}
