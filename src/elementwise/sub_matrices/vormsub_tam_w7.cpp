// vormSub_tam: the kernels for contiguous elements, double precision.

#include "elementwise/matrix_calls.hpp"
#include "elementwise/shapes/mam.hpp"

using namespace vorm;
using namespace vorm::elementwise;

extern "C" {

VormStatus n8_ownvormSub_tam_64f(MAM_PARAMS(double)) { return contiguousKernel<Sub>(mam<Tm>(MAM_ARGS)); }
VormStatus n8_ownvormSub_tam_64f_L(MAM_PARAMS_L(double)) { return contiguousKernel<Sub>(mamL<Tm>(MAM_ARGS_L)); }
}
