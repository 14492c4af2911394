// vormLUDecomp_ma: the kernels for contiguous elements, double precision.

#include "factor/lu/lu_decomp_calls.hpp"

using namespace vorm;
using namespace vorm::factor;

extern "C" {

VormStatus n8_ownvormLUDecomp_ma_64f(LU_DECOMP_MA_PARAMS(double))
{
    return contiguousKernel(luDecompMa(LU_DECOMP_MA_ARGS), n8_ownvormLUDecomp_64f_S_com);
}
VormStatus n8_ownvormLUDecomp_ma_64f_L(LU_DECOMP_MA_PARAMS_L(double))
{
    return contiguousKernel(luDecompMaL(LU_DECOMP_MA_ARGS_L), n8_ownvormLUDecomp_64f_S_com);
}
}
