// vormInvert_ma: team-parallel drivers.

#include "factor/invert/invert.hpp"
#include "frame/driver.hpp"

using namespace vorm;
using namespace vorm::factor;

extern "C" {

VormStatus n8_ownOMP_vormInvert_ma_32f(INVERT_MA_PARAMS(float))
{
    return team<StatusSingular>(invertMa(INVERT_MA_ARGS), n8_ownvormInvert_ma_32f, n8_ownvormInvert_ma_32f_S2);
}
VormStatus n8_ownOMP_vormInvert_ma_64f(INVERT_MA_PARAMS(double))
{
    return team<StatusSingular>(invertMa(INVERT_MA_ARGS), n8_ownvormInvert_ma_64f, n8_ownvormInvert_ma_64f_S2);
}
VormStatus n8_ownOMP_vormInvert_ma_32f_L(INVERT_MA_PARAMS_L(float))
{
    return team<StatusSingular>(invertMaL(INVERT_MA_ARGS_L), n8_ownvormInvert_ma_32f_L, n8_ownvormInvert_ma_32f_LS2);
}
VormStatus n8_ownOMP_vormInvert_ma_64f_L(INVERT_MA_PARAMS_L(double))
{
    return team<StatusSingular>(invertMaL(INVERT_MA_ARGS_L), n8_ownvormInvert_ma_64f_L, n8_ownvormInvert_ma_64f_LS2);
}
VormStatus n8_ownOMP_vormInvert_ma_32f_P(INVERT_MA_PARAMS_P(float))
{
    return team<StatusSingular>(invertMaP(INVERT_MA_ARGS_P), n8_ownvormInvert_ma_32f_P);
}
VormStatus n8_ownOMP_vormInvert_ma_64f_P(INVERT_MA_PARAMS_P(double))
{
    return team<StatusSingular>(invertMaP(INVERT_MA_ARGS_P), n8_ownvormInvert_ma_64f_P);
}
}
