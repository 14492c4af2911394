// vormSub_vva: the kernels for contiguous elements, double precision.

#include "elementwise/vva.hpp"

using namespace vorm;

extern "C" {

VormStatus n8_ownvormSub_vva_64f(VVA_PARAMS(double)) { return vvaContiguous<Sub>(VVA_ARGS); }
VormStatus n8_ownvormSub_vva_64f_L(VVA_PARAMS_L(double)) { return vvaContiguousL<Sub>(VVA_ARGS_L); }
}
