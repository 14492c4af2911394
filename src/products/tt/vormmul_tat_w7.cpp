// vormMul_tat: the kernels for contiguous elements, double precision.

#include "products/mam.hpp"

using namespace vorm;

extern "C" {

VormStatus n8_ownvormMul_tat_64f(MAM_PARAMS(double)) { return mamContiguous<Tt>(MAM_ARGS); }
VormStatus n8_ownvormMul_tat_64f_L(MAM_PARAMS_L(double)) { return mamContiguousL<Tt>(MAM_ARGS_L); }

}
