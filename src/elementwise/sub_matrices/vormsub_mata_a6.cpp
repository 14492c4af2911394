// vormSub_mata: the kernels for contiguous elements, single precision.

#include "elementwise/matrix_calls.hpp"
#include "elementwise/shapes/mama.hpp"

using namespace vorm;
using namespace vorm::elementwise;

extern "C" {

VormStatus n8_ownvormSub_mata_32f(MAMA_PARAMS(float)) { return contiguousKernel<Sub>(mama<Mt>(MAMA_ARGS)); }
VormStatus n8_ownvormSub_mata_32f_L(MAMA_PARAMS_L(float)) { return contiguousKernel<Sub>(mamaL<Mt>(MAMA_ARGS_L)); }
}
