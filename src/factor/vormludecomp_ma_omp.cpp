// vormLUDecomp_ma: team-parallel drivers.

#include "factor/lu_decomp.hpp"

using namespace vorm;

extern "C" {

VormStatus n8_ownOMP_vormLUDecomp_ma_32f(LU_DECOMP_MA_PARAMS(float))
{
    return luDecompMaTeam(n8_ownvormLUDecomp_ma_32f, n8_ownvormLUDecomp_ma_32f_S2, LU_DECOMP_MA_ARGS);
}
VormStatus n8_ownOMP_vormLUDecomp_ma_64f(LU_DECOMP_MA_PARAMS(double))
{
    return luDecompMaTeam(n8_ownvormLUDecomp_ma_64f, n8_ownvormLUDecomp_ma_64f_S2, LU_DECOMP_MA_ARGS);
}
VormStatus n8_ownOMP_vormLUDecomp_ma_32f_L(LU_DECOMP_MA_PARAMS_L(float))
{
    return luDecompMaTeamL(n8_ownvormLUDecomp_ma_32f_L, n8_ownvormLUDecomp_ma_32f_LS2, LU_DECOMP_MA_ARGS_L);
}
VormStatus n8_ownOMP_vormLUDecomp_ma_64f_L(LU_DECOMP_MA_PARAMS_L(double))
{
    return luDecompMaTeamL(n8_ownvormLUDecomp_ma_64f_L, n8_ownvormLUDecomp_ma_64f_LS2, LU_DECOMP_MA_ARGS_L);
}
VormStatus n8_ownOMP_vormLUDecomp_ma_32f_P(LU_DECOMP_MA_PARAMS_P(float))
{
    return luDecompMaTeamP(n8_ownvormLUDecomp_ma_32f_P, LU_DECOMP_MA_ARGS_P);
}
VormStatus n8_ownOMP_vormLUDecomp_ma_64f_P(LU_DECOMP_MA_PARAMS_P(double))
{
    return luDecompMaTeamP(n8_ownvormLUDecomp_ma_64f_P, LU_DECOMP_MA_ARGS_P);
}

}
