// vormLUDecomp_ma: public layers, and the kernels for elements anywhere.

#include "factor/lu_decomp.hpp"

using namespace vorm;

extern "C" {

VormStatus n8_vormLUDecomp_ma_32f(LU_DECOMP_MA_PARAMS(float))
{
    return luDecompMaChecked(n8_ownOMP_vormLUDecomp_ma_32f, n8_ownvormLUDecomp_ma_32f, n8_ownvormLUDecomp_ma_32f_S2,
        LU_DECOMP_MA_ARGS);
}
VormStatus n8_vormLUDecomp_ma_64f(LU_DECOMP_MA_PARAMS(double))
{
    return luDecompMaChecked(n8_ownOMP_vormLUDecomp_ma_64f, n8_ownvormLUDecomp_ma_64f, n8_ownvormLUDecomp_ma_64f_S2,
        LU_DECOMP_MA_ARGS);
}
VormStatus n8_vormLUDecomp_ma_32f_L(LU_DECOMP_MA_PARAMS_L(float))
{
    return luDecompMaCheckedL(n8_ownOMP_vormLUDecomp_ma_32f_L, n8_ownvormLUDecomp_ma_32f_L, n8_ownvormLUDecomp_ma_32f_LS2,
        LU_DECOMP_MA_ARGS_L);
}
VormStatus n8_vormLUDecomp_ma_64f_L(LU_DECOMP_MA_PARAMS_L(double))
{
    return luDecompMaCheckedL(n8_ownOMP_vormLUDecomp_ma_64f_L, n8_ownvormLUDecomp_ma_64f_L, n8_ownvormLUDecomp_ma_64f_LS2,
        LU_DECOMP_MA_ARGS_L);
}
VormStatus n8_vormLUDecomp_ma_32f_P(LU_DECOMP_MA_PARAMS_P(float))
{
    return luDecompMaCheckedP(n8_ownOMP_vormLUDecomp_ma_32f_P, n8_ownvormLUDecomp_ma_32f_P, LU_DECOMP_MA_ARGS_P);
}
VormStatus n8_vormLUDecomp_ma_64f_P(LU_DECOMP_MA_PARAMS_P(double))
{
    return luDecompMaCheckedP(n8_ownOMP_vormLUDecomp_ma_64f_P, n8_ownvormLUDecomp_ma_64f_P, LU_DECOMP_MA_ARGS_P);
}

VormStatus n8_ownvormLUDecomp_ma_32f_S2(LU_DECOMP_MA_PARAMS(float))
{
    return luDecompMaAnyStride(n8_ownvormLUDecomp_32f_S2_com, LU_DECOMP_MA_ARGS);
}
VormStatus n8_ownvormLUDecomp_ma_64f_S2(LU_DECOMP_MA_PARAMS(double))
{
    return luDecompMaAnyStride(n8_ownvormLUDecomp_64f_S2_com, LU_DECOMP_MA_ARGS);
}
VormStatus n8_ownvormLUDecomp_ma_32f_LS2(LU_DECOMP_MA_PARAMS_L(float))
{
    return luDecompMaAnyStrideL(n8_ownvormLUDecomp_32f_S2_com, LU_DECOMP_MA_ARGS_L);
}
VormStatus n8_ownvormLUDecomp_ma_64f_LS2(LU_DECOMP_MA_PARAMS_L(double))
{
    return luDecompMaAnyStrideL(n8_ownvormLUDecomp_64f_S2_com, LU_DECOMP_MA_ARGS_L);
}
VormStatus n8_ownvormLUDecomp_ma_32f_P(LU_DECOMP_MA_PARAMS_P(float))
{
    return luDecompMaPointers(n8_ownvormLUDecomp_32f_P_com, LU_DECOMP_MA_ARGS_P);
}
VormStatus n8_ownvormLUDecomp_ma_64f_P(LU_DECOMP_MA_PARAMS_P(double))
{
    return luDecompMaPointers(n8_ownvormLUDecomp_64f_P_com, LU_DECOMP_MA_ARGS_P);
}

}
