// vormSub_cav: the kernels for contiguous elements, double precision.

#include "elementwise/vca.hpp"

using namespace vorm;

extern "C" {

VormStatus n8_ownvormSub_cav_64f(VCA_PARAMS(double)) { return vcaContiguous<SubFrom>(VCA_ARGS); }
VormStatus n8_ownvormSub_cav_64f_L(VCA_PARAMS_L(double)) { return vcaContiguousL<SubFrom>(VCA_ARGS_L); }
}
