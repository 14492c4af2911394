// vormSub_tt: the kernel for contiguous elements, single precision.

#include "elementwise/matrix_calls.hpp"
#include "elementwise/shapes/mm.hpp"

using namespace vorm;
using namespace vorm::elementwise;

extern "C" {

VormStatus n8_ownvormSub_tt_32f(MM_PARAMS(float)) { return contiguousKernel<Sub>(mm<Tt>(MM_ARGS)); }
}
