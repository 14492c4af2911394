// vormSub_vva: the kernels for contiguous elements, single precision.

#include "elementwise/vva.hpp"

using namespace vorm;

extern "C" {

VormStatus n8_ownvormSub_vva_32f(VVA_PARAMS(float)) { return vvaContiguous<Sub>(VVA_ARGS); }
VormStatus n8_ownvormSub_vva_32f_L(VVA_PARAMS_L(float)) { return vvaContiguousL<Sub>(VVA_ARGS_L); }
}
