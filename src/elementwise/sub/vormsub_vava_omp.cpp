// vormSub_vava: team-parallel drivers.

#include "elementwise/vava.hpp"

using namespace vorm;

extern "C" {

VormStatus n8_ownOMP_vormSub_vava_32f(VAVA_PARAMS(float))
{
    return vavaTeam(n8_ownvormSub_vava_32f, n8_ownvormSub_vava_32f_S2, VAVA_ARGS);
}
VormStatus n8_ownOMP_vormSub_vava_64f(VAVA_PARAMS(double))
{
    return vavaTeam(n8_ownvormSub_vava_64f, n8_ownvormSub_vava_64f_S2, VAVA_ARGS);
}
VormStatus n8_ownOMP_vormSub_vava_32f_L(VAVA_PARAMS_L(float))
{
    return vavaTeamL(n8_ownvormSub_vava_32f_L, n8_ownvormSub_vava_32f_LS2, VAVA_ARGS_L);
}
VormStatus n8_ownOMP_vormSub_vava_64f_L(VAVA_PARAMS_L(double))
{
    return vavaTeamL(n8_ownvormSub_vava_64f_L, n8_ownvormSub_vava_64f_LS2, VAVA_ARGS_L);
}
VormStatus n8_ownOMP_vormSub_vava_32f_P(VAVA_PARAMS_P(float))
{
    return vavaTeamP(n8_ownvormSub_vava_32f_P, VAVA_ARGS_P);
}
VormStatus n8_ownOMP_vormSub_vava_64f_P(VAVA_PARAMS_P(double))
{
    return vavaTeamP(n8_ownvormSub_vava_64f_P, VAVA_ARGS_P);
}
}
