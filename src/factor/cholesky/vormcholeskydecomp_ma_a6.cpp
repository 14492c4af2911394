// vormCholeskyDecomp_ma: the kernels for contiguous elements, single precision.

#include "factor/cholesky/cholesky_decomp_calls.hpp"

using namespace vorm;
using namespace vorm::factor;

extern "C" {

VormStatus n8_ownvormCholeskyDecomp_ma_32f(CHOLESKY_MA_PARAMS(float))
{
    return contiguousKernel(choleskyMa(CHOLESKY_MA_ARGS));
}
VormStatus n8_ownvormCholeskyDecomp_ma_32f_L(CHOLESKY_MA_PARAMS_L(float))
{
    return contiguousKernel(choleskyMaL(CHOLESKY_MA_ARGS_L));
}
}
