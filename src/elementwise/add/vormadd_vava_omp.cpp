// vormAdd_vava: team-parallel drivers.

#include "elementwise/shapes/vava.hpp"
#include "frame/driver.hpp"

using namespace vorm;
using namespace vorm::elementwise;

extern "C" {

VormStatus n8_ownOMP_vormAdd_vava_32f(VAVA_PARAMS(float))
{
    return team(vava(VAVA_ARGS), n8_ownvormAdd_vava_32f, n8_ownvormAdd_vava_32f_S2);
}
VormStatus n8_ownOMP_vormAdd_vava_64f(VAVA_PARAMS(double))
{
    return team(vava(VAVA_ARGS), n8_ownvormAdd_vava_64f, n8_ownvormAdd_vava_64f_S2);
}
VormStatus n8_ownOMP_vormAdd_vava_32f_L(VAVA_PARAMS_L(float))
{
    return team(vavaL(VAVA_ARGS_L), n8_ownvormAdd_vava_32f_L, n8_ownvormAdd_vava_32f_LS2);
}
VormStatus n8_ownOMP_vormAdd_vava_64f_L(VAVA_PARAMS_L(double))
{
    return team(vavaL(VAVA_ARGS_L), n8_ownvormAdd_vava_64f_L, n8_ownvormAdd_vava_64f_LS2);
}
VormStatus n8_ownOMP_vormAdd_vava_32f_P(VAVA_PARAMS_P(float))
{
    return team(vavaP(VAVA_ARGS_P), n8_ownvormAdd_vava_32f_P);
}
VormStatus n8_ownOMP_vormAdd_vava_64f_P(VAVA_PARAMS_P(double))
{
    return team(vavaP(VAVA_ARGS_P), n8_ownvormAdd_vava_64f_P);
}
}
