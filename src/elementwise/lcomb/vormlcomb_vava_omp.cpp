// vormLComb_vava: team-parallel drivers.

#include "elementwise/shapes/lcomb_vava.hpp"
#include "frame/driver.hpp"

using namespace vorm;
using namespace vorm::elementwise;

extern "C" {

VormStatus n8_ownOMP_vormLComb_vava_32f(LCOMB_VAVA_PARAMS(float))
{
    return team(lCombVava(LCOMB_VAVA_ARGS), n8_ownvormLComb_vava_32f, n8_ownvormLComb_vava_32f_S2);
}
VormStatus n8_ownOMP_vormLComb_vava_64f(LCOMB_VAVA_PARAMS(double))
{
    return team(lCombVava(LCOMB_VAVA_ARGS), n8_ownvormLComb_vava_64f, n8_ownvormLComb_vava_64f_S2);
}
VormStatus n8_ownOMP_vormLComb_vava_32f_L(LCOMB_VAVA_PARAMS_L(float))
{
    return team(lCombVavaL(LCOMB_VAVA_ARGS_L), n8_ownvormLComb_vava_32f_L, n8_ownvormLComb_vava_32f_LS2);
}
VormStatus n8_ownOMP_vormLComb_vava_64f_L(LCOMB_VAVA_PARAMS_L(double))
{
    return team(lCombVavaL(LCOMB_VAVA_ARGS_L), n8_ownvormLComb_vava_64f_L, n8_ownvormLComb_vava_64f_LS2);
}
VormStatus n8_ownOMP_vormLComb_vava_32f_P(LCOMB_VAVA_PARAMS_P(float))
{
    return team(lCombVavaP(LCOMB_VAVA_ARGS_P), n8_ownvormLComb_vava_32f_P);
}
VormStatus n8_ownOMP_vormLComb_vava_64f_P(LCOMB_VAVA_PARAMS_P(double))
{
    return team(lCombVavaP(LCOMB_VAVA_ARGS_P), n8_ownvormLComb_vava_64f_P);
}
}
