// vormSub_mam: the kernels for contiguous elements, single precision.

#include "elementwise/matrix_calls.hpp"
#include "elementwise/shapes/mam.hpp"

using namespace vorm;
using namespace vorm::elementwise;

extern "C" {

VormStatus n8_ownvormSub_mam_32f(MAM_PARAMS(float)) { return contiguousKernel<Sub>(mam<Mm>(MAM_ARGS)); }
VormStatus n8_ownvormSub_mam_32f_L(MAM_PARAMS_L(float)) { return contiguousKernel<Sub>(mamL<Mm>(MAM_ARGS_L)); }
}
