// vormMul_mama: the kernels for contiguous elements, single precision.

#include "products/mama.hpp"

using namespace vorm;

extern "C" {

VormStatus n8_ownvormMul_mama_32f(MAMA_PARAMS(float)) { return mamaContiguous<Mm>(MAMA_ARGS); }
VormStatus n8_ownvormMul_mama_32f_L(MAMA_PARAMS_L(float)) { return mamaContiguousL<Mm>(MAMA_ARGS_L); }

}
