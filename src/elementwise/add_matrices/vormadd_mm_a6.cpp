// vormAdd_mm: the kernel for contiguous elements, single precision.

#include "elementwise/matrix_calls.hpp"
#include "elementwise/shapes/mm.hpp"

using namespace vorm;
using namespace vorm::elementwise;

extern "C" {

VormStatus n8_ownvormAdd_mm_32f(MM_PARAMS(float)) { return contiguousKernel<Add>(mm<Mm>(MM_ARGS)); }
}
