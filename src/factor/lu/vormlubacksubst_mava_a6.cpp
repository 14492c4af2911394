// vormLUBackSubst_mava: the kernels for contiguous elements, single precision.

#include "factor/lu/lu_back_subst_calls.hpp"

using namespace vorm;
using namespace vorm::factor;

extern "C" {

VormStatus n8_ownvormLUBackSubst_mava_32f(LU_MAVA_PARAMS(float)) { return contiguousKernel(luMava(LU_MAVA_ARGS)); }
VormStatus n8_ownvormLUBackSubst_mava_32f_L(LU_MAVA_PARAMS_L(float))
{
    return contiguousKernel(luMavaL(LU_MAVA_ARGS_L));
}
}
