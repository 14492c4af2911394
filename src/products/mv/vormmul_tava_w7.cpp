// vormMul_tava: the kernels for contiguous elements, double precision.

#include "products/mava.hpp"

using namespace vorm;

extern "C" {

VormStatus n8_ownvormMul_tava_64f(MAVA_PARAMS(double)) { return mavaContiguous<Turned>(MAVA_ARGS); }
VormStatus n8_ownvormMul_tava_64f_L(MAVA_PARAMS_L(double))
{
    return mavaContiguousL<Turned, Bodies::none>(MAVA_ARGS_L);
}
}
