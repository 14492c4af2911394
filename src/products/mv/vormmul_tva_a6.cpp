// vormMul_tva: the kernels for contiguous elements, single precision.

#include "products/mva.hpp"

using namespace vorm;

extern "C" {

VormStatus n8_ownvormMul_tva_32f(MVA_PARAMS(float)) { return mvaContiguous<Turned>(MVA_ARGS); }
VormStatus n8_ownvormMul_tva_32f_L(MVA_PARAMS_L(float)) { return mvaContiguousL<Turned, Bodies::none>(MVA_ARGS_L); }
}
