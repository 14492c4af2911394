// vormMul_tam: the kernels for contiguous elements, single precision.

#include "products/mam.hpp"

using namespace vorm;

extern "C" {

VormStatus n8_ownvormMul_tam_32f(MAM_PARAMS(float)) { return mamContiguous<Tm, Bodies::upTo5>(MAM_ARGS); }
VormStatus n8_ownvormMul_tam_32f_L(MAM_PARAMS_L(float)) { return mamContiguousL<Tm, Bodies::upTo5>(MAM_ARGS_L); }

}
