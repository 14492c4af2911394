// vormAdd_tt: the kernel for contiguous elements, double precision.

#include "elementwise/matrix_calls.hpp"
#include "elementwise/shapes/mm.hpp"

using namespace vorm;
using namespace vorm::elementwise;

extern "C" {

VormStatus n8_ownvormAdd_tt_64f(MM_PARAMS(double)) { return contiguousKernel<Add>(mm<Tt>(MM_ARGS)); }
}
