// vormGaxpy_mvav: the kernels for contiguous elements, single precision.

#include "products/gaxpy_calls.hpp"
#include "products/shapes/gaxpy_mvav.hpp"

using namespace vorm;
using namespace vorm::products;

extern "C" {

VormStatus n8_ownvormGaxpy_mvav_32f(GAXPY_MVAV_PARAMS(float)) { return gaxpyContiguous(gaxpyMvav(GAXPY_MVAV_ARGS)); }
VormStatus n8_ownvormGaxpy_mvav_32f_L(GAXPY_MVAV_PARAMS_L(float))
{
    return gaxpyContiguous(gaxpyMvavL(GAXPY_MVAV_ARGS_L));
}
}
