// vormGaxpy_mva: the kernels for contiguous elements, double precision.

#include "products/gaxpy_calls.hpp"
#include "products/shapes/gaxpy_mva.hpp"

using namespace vorm;
using namespace vorm::products;

extern "C" {

VormStatus n8_ownvormGaxpy_mva_64f(GAXPY_MVA_PARAMS(double)) { return gaxpyContiguous(gaxpyMva(GAXPY_MVA_ARGS)); }
VormStatus n8_ownvormGaxpy_mva_64f_L(GAXPY_MVA_PARAMS_L(double))
{
    return gaxpyContiguous(gaxpyMvaL(GAXPY_MVA_ARGS_L));
}
}
