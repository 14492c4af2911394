// vormLComb_vav: team-parallel drivers.

#include "elementwise/shapes/lcomb_vav.hpp"
#include "frame/driver.hpp"

using namespace vorm;
using namespace vorm::elementwise;

extern "C" {

VormStatus n8_ownOMP_vormLComb_vav_32f(LCOMB_VAV_PARAMS(float))
{
    return team(lCombVav(LCOMB_VAV_ARGS), n8_ownvormLComb_vav_32f, n8_ownvormLComb_vav_32f_S2);
}
VormStatus n8_ownOMP_vormLComb_vav_64f(LCOMB_VAV_PARAMS(double))
{
    return team(lCombVav(LCOMB_VAV_ARGS), n8_ownvormLComb_vav_64f, n8_ownvormLComb_vav_64f_S2);
}
VormStatus n8_ownOMP_vormLComb_vav_32f_L(LCOMB_VAV_PARAMS_L(float))
{
    return team(lCombVavL(LCOMB_VAV_ARGS_L), n8_ownvormLComb_vav_32f_L, n8_ownvormLComb_vav_32f_LS2);
}
VormStatus n8_ownOMP_vormLComb_vav_64f_L(LCOMB_VAV_PARAMS_L(double))
{
    return team(lCombVavL(LCOMB_VAV_ARGS_L), n8_ownvormLComb_vav_64f_L, n8_ownvormLComb_vav_64f_LS2);
}
VormStatus n8_ownOMP_vormLComb_vav_32f_P(LCOMB_VAV_PARAMS_P(float))
{
    return team(lCombVavP(LCOMB_VAV_ARGS_P), n8_ownvormLComb_vav_32f_P);
}
VormStatus n8_ownOMP_vormLComb_vav_64f_P(LCOMB_VAV_PARAMS_P(double))
{
    return team(lCombVavP(LCOMB_VAV_ARGS_P), n8_ownvormLComb_vav_64f_P);
}
}
