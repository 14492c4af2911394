// vormGaxpy_mv: the kernel for contiguous elements, single precision.

#include "products/gaxpy_calls.hpp"
#include "products/shapes/gaxpy_mv.hpp"

using namespace vorm;
using namespace vorm::products;

extern "C" {

VormStatus n8_ownvormGaxpy_mv_32f(GAXPY_MV_PARAMS(float)) { return gaxpyContiguous(gaxpyMv(GAXPY_MV_ARGS)); }
}
