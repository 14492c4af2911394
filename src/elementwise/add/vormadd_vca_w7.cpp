// vormAdd_vca: the kernels for contiguous elements, double precision.

#include "elementwise/vca.hpp"

using namespace vorm;

extern "C" {

VormStatus n8_ownvormAdd_vca_64f(VCA_PARAMS(double)) { return vcaContiguous<Add>(VCA_ARGS); }
VormStatus n8_ownvormAdd_vca_64f_L(VCA_PARAMS_L(double)) { return vcaContiguousL<Add>(VCA_ARGS_L); }
}
