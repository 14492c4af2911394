// vormGaxpy_mva: the kernels for contiguous elements, single precision.

#include "products/gaxpy_calls.hpp"
#include "products/shapes/gaxpy_mva.hpp"

using namespace vorm;
using namespace vorm::products;

extern "C" {

VormStatus n8_ownvormGaxpy_mva_32f(GAXPY_MVA_PARAMS(float)) { return gaxpyContiguous(gaxpyMva(GAXPY_MVA_ARGS)); }
VormStatus n8_ownvormGaxpy_mva_32f_L(GAXPY_MVA_PARAMS_L(float)) { return gaxpyContiguous(gaxpyMvaL(GAXPY_MVA_ARGS_L)); }
}
