// vormSub_tama: the kernels for contiguous elements, double precision.

#include "elementwise/matrix_calls.hpp"
#include "elementwise/shapes/mama.hpp"

using namespace vorm;
using namespace vorm::elementwise;

extern "C" {

VormStatus n8_ownvormSub_tama_64f(MAMA_PARAMS(double)) { return contiguousKernel<Sub>(mama<Tm>(MAMA_ARGS)); }
VormStatus n8_ownvormSub_tama_64f_L(MAMA_PARAMS_L(double)) { return contiguousKernel<Sub>(mamaL<Tm>(MAMA_ARGS_L)); }
}
