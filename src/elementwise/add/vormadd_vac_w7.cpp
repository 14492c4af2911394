// vormAdd_vac: the kernels for contiguous elements, double precision.

#include "elementwise/vac.hpp"

using namespace vorm;

extern "C" {

VormStatus n8_ownvormAdd_vac_64f(VAC_PARAMS(double)) { return vacContiguous<Add>(VAC_ARGS); }
VormStatus n8_ownvormAdd_vac_64f_L(VAC_PARAMS_L(double)) { return vacContiguousL<Add>(VAC_ARGS_L); }
}
