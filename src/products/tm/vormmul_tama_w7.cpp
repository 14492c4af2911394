// vormMul_tama: the kernels for contiguous elements, double precision.

#include "products/mama.hpp"

using namespace vorm;

extern "C" {

VormStatus n8_ownvormMul_tama_64f(MAMA_PARAMS(double)) { return mamaContiguous<Tm>(MAMA_ARGS); }
VormStatus n8_ownvormMul_tama_64f_L(MAMA_PARAMS_L(double)) { return mamaContiguousL<Tm>(MAMA_ARGS_L); }

}
