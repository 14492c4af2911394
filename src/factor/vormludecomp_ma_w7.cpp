// vormLUDecomp_ma: the kernels for contiguous elements, double precision.

#include "factor/lu_decomp.hpp"

using namespace vorm;

extern "C" {

VormStatus n8_ownvormLUDecomp_ma_64f(LU_DECOMP_MA_PARAMS(double))
{
    return luDecompMaContiguous(n8_ownvormLUDecomp_64f_S_com, LU_DECOMP_MA_ARGS);
}
VormStatus n8_ownvormLUDecomp_ma_64f_L(LU_DECOMP_MA_PARAMS_L(double))
{
    return luDecompMaContiguousL(n8_ownvormLUDecomp_64f_S_com, LU_DECOMP_MA_ARGS_L);
}

}
