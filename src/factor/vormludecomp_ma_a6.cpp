// vormLUDecomp_ma: the kernels for contiguous elements, single precision.

#include "factor/lu_decomp.hpp"

using namespace vorm;

extern "C" {

VormStatus n8_ownvormLUDecomp_ma_32f(LU_DECOMP_MA_PARAMS(float))
{
    return luDecompMaContiguous(n8_ownvormLUDecomp_32f_S_com, LU_DECOMP_MA_ARGS);
}
VormStatus n8_ownvormLUDecomp_ma_32f_L(LU_DECOMP_MA_PARAMS_L(float))
{
    return luDecompMaContiguousL(n8_ownvormLUDecomp_32f_S_com, LU_DECOMP_MA_ARGS_L);
}

}
