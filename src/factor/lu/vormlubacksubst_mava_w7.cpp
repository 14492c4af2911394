// vormLUBackSubst_mava: the kernels for contiguous elements, double precision.

#include "factor/lu/lu_back_subst_calls.hpp"

using namespace vorm;
using namespace vorm::factor;

extern "C" {

VormStatus n8_ownvormLUBackSubst_mava_64f(LU_MAVA_PARAMS(double)) { return contiguousKernel(luMava(LU_MAVA_ARGS)); }
VormStatus n8_ownvormLUBackSubst_mava_64f_L(LU_MAVA_PARAMS_L(double))
{
    return contiguousKernel(luMavaL(LU_MAVA_ARGS_L));
}
}
