// vormSub_tta: the kernels for contiguous elements, single precision.

#include "elementwise/matrix_calls.hpp"
#include "elementwise/shapes/mma.hpp"

using namespace vorm;
using namespace vorm::elementwise;

extern "C" {

VormStatus n8_ownvormSub_tta_32f(MMA_PARAMS(float)) { return contiguousKernel<Sub>(mma<Tt>(MMA_ARGS)); }
VormStatus n8_ownvormSub_tta_32f_L(MMA_PARAMS_L(float)) { return contiguousKernel<Sub>(mmaL<Tt>(MMA_ARGS_L)); }
}
