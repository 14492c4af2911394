// vormMul_tta: the kernels for contiguous elements, double precision.

#include "products/mma.hpp"

using namespace vorm;

extern "C" {

VormStatus n8_ownvormMul_tta_64f(MMA_PARAMS(double)) { return mmaContiguous<Tt>(MMA_ARGS); }
VormStatus n8_ownvormMul_tta_64f_L(MMA_PARAMS_L(double)) { return mmaContiguousL<Tt, Bodies::none>(MMA_ARGS_L); }

}
