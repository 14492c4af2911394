// vormSub_vca: the kernels for contiguous elements, single precision.

#include "elementwise/vca.hpp"

using namespace vorm;

extern "C" {

VormStatus n8_ownvormSub_vca_32f(VCA_PARAMS(float)) { return vcaContiguous<Sub>(VCA_ARGS); }
VormStatus n8_ownvormSub_vca_32f_L(VCA_PARAMS_L(float)) { return vcaContiguousL<Sub>(VCA_ARGS_L); }
}
