// vormLUDecomp_ma: public layers, and the kernels for elements anywhere.

#include "factor/lu/lu_decomp_calls.hpp"

using namespace vorm;
using namespace vorm::factor;

extern "C" {

VormStatus n8_vormLUDecomp_ma_32f(LU_DECOMP_MA_PARAMS(float))
{
    return checked<from(1001)>(luDecompMa(LU_DECOMP_MA_ARGS), n8_ownOMP_vormLUDecomp_ma_32f, n8_ownvormLUDecomp_ma_32f,
                               n8_ownvormLUDecomp_ma_32f_S2, LU_DECOMP_MA_ARGS);
}
VormStatus n8_vormLUDecomp_ma_64f(LU_DECOMP_MA_PARAMS(double))
{
    return checked<from(1001)>(luDecompMa(LU_DECOMP_MA_ARGS), n8_ownOMP_vormLUDecomp_ma_64f, n8_ownvormLUDecomp_ma_64f,
                               n8_ownvormLUDecomp_ma_64f_S2, LU_DECOMP_MA_ARGS);
}
VormStatus n8_vormLUDecomp_ma_32f_L(LU_DECOMP_MA_PARAMS_L(float))
{
    return checked<from(1001)>(luDecompMaL(LU_DECOMP_MA_ARGS_L), n8_ownOMP_vormLUDecomp_ma_32f_L,
                               n8_ownvormLUDecomp_ma_32f_L, n8_ownvormLUDecomp_ma_32f_LS2, LU_DECOMP_MA_ARGS_L);
}
VormStatus n8_vormLUDecomp_ma_64f_L(LU_DECOMP_MA_PARAMS_L(double))
{
    return checked<from(1001)>(luDecompMaL(LU_DECOMP_MA_ARGS_L), n8_ownOMP_vormLUDecomp_ma_64f_L,
                               n8_ownvormLUDecomp_ma_64f_L, n8_ownvormLUDecomp_ma_64f_LS2, LU_DECOMP_MA_ARGS_L);
}
VormStatus n8_vormLUDecomp_ma_32f_P(LU_DECOMP_MA_PARAMS_P(float))
{
    return checked<from(1001)>(luDecompMaP(LU_DECOMP_MA_ARGS_P), n8_ownOMP_vormLUDecomp_ma_32f_P,
                               n8_ownvormLUDecomp_ma_32f_P, LU_DECOMP_MA_ARGS_P);
}
VormStatus n8_vormLUDecomp_ma_64f_P(LU_DECOMP_MA_PARAMS_P(double))
{
    return checked<from(1001)>(luDecompMaP(LU_DECOMP_MA_ARGS_P), n8_ownOMP_vormLUDecomp_ma_64f_P,
                               n8_ownvormLUDecomp_ma_64f_P, LU_DECOMP_MA_ARGS_P);
}

VormStatus n8_ownvormLUDecomp_ma_32f_S2(LU_DECOMP_MA_PARAMS(float))
{
    return anyStrideKernel(luDecompMa(LU_DECOMP_MA_ARGS), n8_ownvormLUDecomp_32f_S2_com);
}
VormStatus n8_ownvormLUDecomp_ma_64f_S2(LU_DECOMP_MA_PARAMS(double))
{
    return anyStrideKernel(luDecompMa(LU_DECOMP_MA_ARGS), n8_ownvormLUDecomp_64f_S2_com);
}
VormStatus n8_ownvormLUDecomp_ma_32f_LS2(LU_DECOMP_MA_PARAMS_L(float))
{
    return anyStrideKernel(luDecompMaL(LU_DECOMP_MA_ARGS_L), n8_ownvormLUDecomp_32f_S2_com);
}
VormStatus n8_ownvormLUDecomp_ma_64f_LS2(LU_DECOMP_MA_PARAMS_L(double))
{
    return anyStrideKernel(luDecompMaL(LU_DECOMP_MA_ARGS_L), n8_ownvormLUDecomp_64f_S2_com);
}
VormStatus n8_ownvormLUDecomp_ma_32f_P(LU_DECOMP_MA_PARAMS_P(float))
{
    return pointerKernel(luDecompMaP(LU_DECOMP_MA_ARGS_P), n8_ownvormLUDecomp_32f_P_com);
}
VormStatus n8_ownvormLUDecomp_ma_64f_P(LU_DECOMP_MA_PARAMS_P(double))
{
    return pointerKernel(luDecompMaP(LU_DECOMP_MA_ARGS_P), n8_ownvormLUDecomp_64f_P_com);
}
}
