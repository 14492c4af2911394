// vormMul_tama: the kernels for contiguous elements, single precision.

#include "products/mama.hpp"

using namespace vorm;

extern "C" {

VormStatus n8_ownvormMul_tama_32f(MAMA_PARAMS(float)) { return mamaContiguous<Tm, Bodies::upTo5>(MAMA_ARGS); }
VormStatus n8_ownvormMul_tama_32f_L(MAMA_PARAMS_L(float)) { return mamaContiguousL<Tm, Bodies::upTo5>(MAMA_ARGS_L); }

}
