// vormLUDecomp_ma: team-parallel drivers.

#include "factor/lu/lu_decomp.hpp"
#include "frame/driver.hpp"

using namespace vorm;
using namespace vorm::factor;

extern "C" {

VormStatus n8_ownOMP_vormLUDecomp_ma_32f(LU_DECOMP_MA_PARAMS(float))
{
    return team<StatusSingular>(luDecompMa(LU_DECOMP_MA_ARGS), n8_ownvormLUDecomp_ma_32f, n8_ownvormLUDecomp_ma_32f_S2);
}
VormStatus n8_ownOMP_vormLUDecomp_ma_64f(LU_DECOMP_MA_PARAMS(double))
{
    return team<StatusSingular>(luDecompMa(LU_DECOMP_MA_ARGS), n8_ownvormLUDecomp_ma_64f, n8_ownvormLUDecomp_ma_64f_S2);
}
VormStatus n8_ownOMP_vormLUDecomp_ma_32f_L(LU_DECOMP_MA_PARAMS_L(float))
{
    return team<StatusSingular>(luDecompMaL(LU_DECOMP_MA_ARGS_L), n8_ownvormLUDecomp_ma_32f_L,
                                n8_ownvormLUDecomp_ma_32f_LS2);
}
VormStatus n8_ownOMP_vormLUDecomp_ma_64f_L(LU_DECOMP_MA_PARAMS_L(double))
{
    return team<StatusSingular>(luDecompMaL(LU_DECOMP_MA_ARGS_L), n8_ownvormLUDecomp_ma_64f_L,
                                n8_ownvormLUDecomp_ma_64f_LS2);
}
VormStatus n8_ownOMP_vormLUDecomp_ma_32f_P(LU_DECOMP_MA_PARAMS_P(float))
{
    return team<StatusSingular>(luDecompMaP(LU_DECOMP_MA_ARGS_P), n8_ownvormLUDecomp_ma_32f_P);
}
VormStatus n8_ownOMP_vormLUDecomp_ma_64f_P(LU_DECOMP_MA_PARAMS_P(double))
{
    return team<StatusSingular>(luDecompMaP(LU_DECOMP_MA_ARGS_P), n8_ownvormLUDecomp_ma_64f_P);
}
}
