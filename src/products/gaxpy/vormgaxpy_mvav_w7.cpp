// vormGaxpy_mvav: the kernels for contiguous elements, double precision.

#include "products/gaxpy_calls.hpp"
#include "products/shapes/gaxpy_mvav.hpp"

using namespace vorm;
using namespace vorm::products;

extern "C" {

VormStatus n8_ownvormGaxpy_mvav_64f(GAXPY_MVAV_PARAMS(double)) { return gaxpyContiguous(gaxpyMvav(GAXPY_MVAV_ARGS)); }
VormStatus n8_ownvormGaxpy_mvav_64f_L(GAXPY_MVAV_PARAMS_L(double))
{
    return gaxpyContiguous(gaxpyMvavL(GAXPY_MVAV_ARGS_L));
}
}
