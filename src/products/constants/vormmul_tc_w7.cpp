// vormMul_tc: the kernel for contiguous elements, double precision.

#include "elementwise/matrix_calls.hpp"
#include "products/shapes/mc.hpp"

using namespace vorm;
using namespace vorm::products;
using elementwise::anyStrideKernel, elementwise::contiguousKernel, elementwise::pointerKernel;

extern "C" {

VormStatus n8_ownvormMul_tc_64f(MC_PARAMS(double)) { return contiguousKernel<Mul>(mc<AsTransposed>(MC_ARGS)); }
}
