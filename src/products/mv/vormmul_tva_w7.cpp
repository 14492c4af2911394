// vormMul_tva: the kernels for contiguous elements, double precision.

#include "products/mva.hpp"

using namespace vorm;

extern "C" {

VormStatus n8_ownvormMul_tva_64f(MVA_PARAMS(double)) { return mvaContiguous<Turned>(MVA_ARGS); }
VormStatus n8_ownvormMul_tva_64f_L(MVA_PARAMS_L(double)) { return mvaContiguousL<Turned, Bodies::none>(MVA_ARGS_L); }
}
