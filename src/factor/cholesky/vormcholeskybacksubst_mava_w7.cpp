// vormCholeskyBackSubst_mava: the kernels for contiguous elements, double precision.

#include "factor/cholesky/cholesky_back_subst_calls.hpp"

using namespace vorm;
using namespace vorm::factor;

extern "C" {

VormStatus n8_ownvormCholeskyBackSubst_mava_64f(CHOLESKY_MAVA_PARAMS(double))
{
    return contiguousKernel(choleskyMava(CHOLESKY_MAVA_ARGS));
}
VormStatus n8_ownvormCholeskyBackSubst_mava_64f_L(CHOLESKY_MAVA_PARAMS_L(double))
{
    return contiguousKernel(choleskyMavaL(CHOLESKY_MAVA_ARGS_L));
}
}
