// vormSub_mma: the kernels for contiguous elements, single precision.

#include "elementwise/matrix_calls.hpp"
#include "elementwise/shapes/mma.hpp"

using namespace vorm;
using namespace vorm::elementwise;

extern "C" {

VormStatus n8_ownvormSub_mma_32f(MMA_PARAMS(float)) { return contiguousKernel<Sub>(mma<Mm>(MMA_ARGS)); }
VormStatus n8_ownvormSub_mma_32f_L(MMA_PARAMS_L(float)) { return contiguousKernel<Sub>(mmaL<Mm>(MMA_ARGS_L)); }
}
