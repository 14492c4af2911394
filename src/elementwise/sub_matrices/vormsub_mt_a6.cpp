// vormSub_mt: the kernel for contiguous elements, single precision.

#include "elementwise/matrix_calls.hpp"
#include "elementwise/shapes/mm.hpp"

using namespace vorm;
using namespace vorm::elementwise;

extern "C" {

VormStatus n8_ownvormSub_mt_32f(MM_PARAMS(float)) { return contiguousKernel<Sub>(mm<Mt>(MM_ARGS)); }
}
