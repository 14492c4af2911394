// vormMul_mva: the kernels for contiguous elements, double precision.

#include "products/mva.hpp"

using namespace vorm;

extern "C" {

VormStatus n8_ownvormMul_mva_64f(MVA_PARAMS(double)) { return mvaContiguous<AsStored>(MVA_ARGS); }
VormStatus n8_ownvormMul_mva_64f_L(MVA_PARAMS_L(double)) { return mvaContiguousL<AsStored>(MVA_ARGS_L); }
}
