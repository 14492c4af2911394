// vormMul_tata: the kernels for contiguous elements, double precision.

#include "products/mama.hpp"

using namespace vorm;

extern "C" {

VormStatus n8_ownvormMul_tata_64f(MAMA_PARAMS(double)) { return mamaContiguous<Tt>(MAMA_ARGS); }
VormStatus n8_ownvormMul_tata_64f_L(MAMA_PARAMS_L(double)) { return mamaContiguousL<Tt>(MAMA_ARGS_L); }

}
