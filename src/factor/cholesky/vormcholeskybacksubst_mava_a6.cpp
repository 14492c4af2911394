// vormCholeskyBackSubst_mava: the kernels for contiguous elements, single precision.

#include "factor/cholesky/cholesky_back_subst_calls.hpp"

using namespace vorm;
using namespace vorm::factor;

extern "C" {

VormStatus n8_ownvormCholeskyBackSubst_mava_32f(CHOLESKY_MAVA_PARAMS(float))
{
    return contiguousKernel(choleskyMava(CHOLESKY_MAVA_ARGS));
}
VormStatus n8_ownvormCholeskyBackSubst_mava_32f_L(CHOLESKY_MAVA_PARAMS_L(float))
{
    return contiguousKernel(choleskyMavaL(CHOLESKY_MAVA_ARGS_L));
}
}
