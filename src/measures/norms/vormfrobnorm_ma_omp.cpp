// vormFrobNorm_ma: team-parallel drivers.

#include "frame/driver.hpp"
#include "measures/norms/frobnorm.hpp"

using namespace vorm;
using namespace vorm::measures;

extern "C" {

VormStatus n8_ownOMP_vormFrobNorm_ma_32f(FROB_MA_PARAMS(float))
{
    return team(frobNormMa(FROB_MA_ARGS), n8_ownvormFrobNorm_ma_32f, n8_ownvormFrobNorm_ma_32f_S2);
}
VormStatus n8_ownOMP_vormFrobNorm_ma_64f(FROB_MA_PARAMS(double))
{
    return team(frobNormMa(FROB_MA_ARGS), n8_ownvormFrobNorm_ma_64f, n8_ownvormFrobNorm_ma_64f_S2);
}
VormStatus n8_ownOMP_vormFrobNorm_ma_32f_L(FROB_MA_PARAMS_L(float))
{
    return team(frobNormMaL(FROB_MA_ARGS_L), n8_ownvormFrobNorm_ma_32f_L, n8_ownvormFrobNorm_ma_32f_LS2);
}
VormStatus n8_ownOMP_vormFrobNorm_ma_64f_L(FROB_MA_PARAMS_L(double))
{
    return team(frobNormMaL(FROB_MA_ARGS_L), n8_ownvormFrobNorm_ma_64f_L, n8_ownvormFrobNorm_ma_64f_LS2);
}
VormStatus n8_ownOMP_vormFrobNorm_ma_32f_P(FROB_MA_PARAMS_P(float))
{
    return team(frobNormMaP(FROB_MA_ARGS_P), n8_ownvormFrobNorm_ma_32f_P);
}
VormStatus n8_ownOMP_vormFrobNorm_ma_64f_P(FROB_MA_PARAMS_P(double))
{
    return team(frobNormMaP(FROB_MA_ARGS_P), n8_ownvormFrobNorm_ma_64f_P);
}
}
