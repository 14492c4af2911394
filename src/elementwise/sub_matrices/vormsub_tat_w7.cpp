// vormSub_tat: the kernels for contiguous elements, double precision.

#include "elementwise/matrix_calls.hpp"
#include "elementwise/shapes/mam.hpp"

using namespace vorm;
using namespace vorm::elementwise;

extern "C" {

VormStatus n8_ownvormSub_tat_64f(MAM_PARAMS(double)) { return contiguousKernel<Sub>(mam<Tt>(MAM_ARGS)); }
VormStatus n8_ownvormSub_tat_64f_L(MAM_PARAMS_L(double)) { return contiguousKernel<Sub>(mamL<Tt>(MAM_ARGS_L)); }
}
