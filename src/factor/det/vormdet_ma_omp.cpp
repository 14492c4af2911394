// vormDet_ma: team-parallel drivers.

#include "factor/det/det.hpp"
#include "frame/driver.hpp"

using namespace vorm;
using namespace vorm::factor;

extern "C" {

VormStatus n8_ownOMP_vormDet_ma_32f(DET_MA_PARAMS(float))
{
    return team(detMa(DET_MA_ARGS), n8_ownvormDet_ma_32f, n8_ownvormDet_ma_32f_S2);
}
VormStatus n8_ownOMP_vormDet_ma_64f(DET_MA_PARAMS(double))
{
    return team(detMa(DET_MA_ARGS), n8_ownvormDet_ma_64f, n8_ownvormDet_ma_64f_S2);
}
VormStatus n8_ownOMP_vormDet_ma_32f_L(DET_MA_PARAMS_L(float))
{
    return team(detMaL(DET_MA_ARGS_L), n8_ownvormDet_ma_32f_L, n8_ownvormDet_ma_32f_LS2);
}
VormStatus n8_ownOMP_vormDet_ma_64f_L(DET_MA_PARAMS_L(double))
{
    return team(detMaL(DET_MA_ARGS_L), n8_ownvormDet_ma_64f_L, n8_ownvormDet_ma_64f_LS2);
}
VormStatus n8_ownOMP_vormDet_ma_32f_P(DET_MA_PARAMS_P(float))
{
    return team(detMaP(DET_MA_ARGS_P), n8_ownvormDet_ma_32f_P);
}
VormStatus n8_ownOMP_vormDet_ma_64f_P(DET_MA_PARAMS_P(double))
{
    return team(detMaP(DET_MA_ARGS_P), n8_ownvormDet_ma_64f_P);
}
}
