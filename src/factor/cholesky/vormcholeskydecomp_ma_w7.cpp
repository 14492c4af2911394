// vormCholeskyDecomp_ma: the kernels for contiguous elements, double precision.

#include "factor/cholesky/cholesky_decomp_calls.hpp"

using namespace vorm;
using namespace vorm::factor;

extern "C" {

VormStatus n8_ownvormCholeskyDecomp_ma_64f(CHOLESKY_MA_PARAMS(double))
{
    return contiguousKernel(choleskyMa(CHOLESKY_MA_ARGS));
}
VormStatus n8_ownvormCholeskyDecomp_ma_64f_L(CHOLESKY_MA_PARAMS_L(double))
{
    return contiguousKernel(choleskyMaL(CHOLESKY_MA_ARGS_L));
}
}
