// vormGaxpy_mv: the kernel for contiguous elements, double precision.

#include "products/gaxpy_calls.hpp"
#include "products/shapes/gaxpy_mv.hpp"

using namespace vorm;
using namespace vorm::products;

extern "C" {

VormStatus n8_ownvormGaxpy_mv_64f(GAXPY_MV_PARAMS(double)) { return gaxpyContiguous(gaxpyMv(GAXPY_MV_ARGS)); }
}
