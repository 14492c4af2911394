// vormSub_vac: the kernels for contiguous elements, double precision.

#include "elementwise/vac.hpp"

using namespace vorm;

extern "C" {

VormStatus n8_ownvormSub_vac_64f(VAC_PARAMS(double)) { return vacContiguous<Sub>(VAC_ARGS); }
VormStatus n8_ownvormSub_vac_64f_L(VAC_PARAMS_L(double)) { return vacContiguousL<Sub>(VAC_ARGS_L); }
}
