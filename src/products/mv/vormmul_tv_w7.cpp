// vormMul_tv: the kernel for contiguous elements, double precision.

#include "products/shapes/mv.hpp"
#include "products/vector_calls.hpp"

using namespace vorm;
using namespace vorm::products;

extern "C" {

VormStatus n8_ownvormMul_tv_64f(MV_PARAMS(double)) { return contiguousKernel<AsTransposed>(mv<AsTransposed>(MV_ARGS)); }
}
