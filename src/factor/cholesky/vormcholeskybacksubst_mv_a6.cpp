// vormCholeskyBackSubst_mv: the kernel for contiguous elements, single precision.

#include "factor/cholesky/cholesky_back_subst_calls.hpp"

using namespace vorm;
using namespace vorm::factor;

extern "C" {

VormStatus n8_ownvormCholeskyBackSubst_mv_32f(CHOLESKY_MV_PARAMS(float))
{
    return contiguousKernel(choleskyMv(CHOLESKY_MV_ARGS));
}
}
