// vormSub_mt: the kernel for contiguous elements, double precision.

#include "elementwise/matrix_calls.hpp"
#include "elementwise/shapes/mm.hpp"

using namespace vorm;
using namespace vorm::elementwise;

extern "C" {

VormStatus n8_ownvormSub_mt_64f(MM_PARAMS(double)) { return contiguousKernel<Sub>(mm<Mt>(MM_ARGS)); }
}
