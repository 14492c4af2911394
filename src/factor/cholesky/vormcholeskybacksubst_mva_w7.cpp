// vormCholeskyBackSubst_mva: the kernels for contiguous elements, double precision.

#include "factor/cholesky/cholesky_back_subst_calls.hpp"

using namespace vorm;
using namespace vorm::factor;

extern "C" {

VormStatus n8_ownvormCholeskyBackSubst_mva_64f(CHOLESKY_MVA_PARAMS(double))
{
    return contiguousKernel(choleskyMva(CHOLESKY_MVA_ARGS));
}
VormStatus n8_ownvormCholeskyBackSubst_mva_64f_L(CHOLESKY_MVA_PARAMS_L(double))
{
    return contiguousKernel(choleskyMvaL(CHOLESKY_MVA_ARGS_L));
}
}
