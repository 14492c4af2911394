// vormSub_mm: the kernel for contiguous elements, double precision.

#include "elementwise/matrix_calls.hpp"
#include "elementwise/shapes/mm.hpp"

using namespace vorm;
using namespace vorm::elementwise;

extern "C" {

VormStatus n8_ownvormSub_mm_64f(MM_PARAMS(double)) { return contiguousKernel<Sub>(mm<Mm>(MM_ARGS)); }
}
