// vormLUDecomp_ma: the kernels for contiguous elements, single precision.

#include "factor/lu/lu_decomp_calls.hpp"

using namespace vorm;
using namespace vorm::factor;

extern "C" {

VormStatus n8_ownvormLUDecomp_ma_32f(LU_DECOMP_MA_PARAMS(float))
{
    return contiguousKernel(luDecompMa(LU_DECOMP_MA_ARGS), n8_ownvormLUDecomp_32f_S_com);
}
VormStatus n8_ownvormLUDecomp_ma_32f_L(LU_DECOMP_MA_PARAMS_L(float))
{
    return contiguousKernel(luDecompMaL(LU_DECOMP_MA_ARGS_L), n8_ownvormLUDecomp_32f_S_com);
}
}
