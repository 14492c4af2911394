// vormMul_mva: the kernels for contiguous elements, single precision.

#include "products/mva.hpp"

using namespace vorm;

extern "C" {

VormStatus n8_ownvormMul_mva_32f(MVA_PARAMS(float)) { return mvaContiguous<AsStored>(MVA_ARGS); }
VormStatus n8_ownvormMul_mva_32f_L(MVA_PARAMS_L(float)) { return mvaContiguousL<AsStored, Bodies::none>(MVA_ARGS_L); }
}
