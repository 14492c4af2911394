// vormAdd_tata: the kernels for contiguous elements, double precision.

#include "elementwise/matrix_calls.hpp"
#include "elementwise/shapes/mama.hpp"

using namespace vorm;
using namespace vorm::elementwise;

extern "C" {

VormStatus n8_ownvormAdd_tata_64f(MAMA_PARAMS(double)) { return contiguousKernel<Add>(mama<Tt>(MAMA_ARGS)); }
VormStatus n8_ownvormAdd_tata_64f_L(MAMA_PARAMS_L(double)) { return contiguousKernel<Add>(mamaL<Tt>(MAMA_ARGS_L)); }
}
