// vormAdd_tama: the kernels for contiguous elements, single precision.

#include "elementwise/matrix_calls.hpp"
#include "elementwise/shapes/mama.hpp"

using namespace vorm;
using namespace vorm::elementwise;

extern "C" {

VormStatus n8_ownvormAdd_tama_32f(MAMA_PARAMS(float)) { return contiguousKernel<Add>(mama<Tm>(MAMA_ARGS)); }
VormStatus n8_ownvormAdd_tama_32f_L(MAMA_PARAMS_L(float)) { return contiguousKernel<Add>(mamaL<Tm>(MAMA_ARGS_L)); }
}
