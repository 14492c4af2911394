// vormSub_cava: team-parallel drivers.

#include "elementwise/vaca.hpp"

using namespace vorm;

extern "C" {

VormStatus n8_ownOMP_vormSub_cava_32f(VACA_PARAMS(float))
{
    return vacaTeam(n8_ownvormSub_cava_32f, n8_ownvormSub_cava_32f_S2, VACA_ARGS);
}
VormStatus n8_ownOMP_vormSub_cava_64f(VACA_PARAMS(double))
{
    return vacaTeam(n8_ownvormSub_cava_64f, n8_ownvormSub_cava_64f_S2, VACA_ARGS);
}
VormStatus n8_ownOMP_vormSub_cava_32f_L(VACA_PARAMS_L(float))
{
    return vacaTeamL(n8_ownvormSub_cava_32f_L, n8_ownvormSub_cava_32f_LS2, VACA_ARGS_L);
}
VormStatus n8_ownOMP_vormSub_cava_64f_L(VACA_PARAMS_L(double))
{
    return vacaTeamL(n8_ownvormSub_cava_64f_L, n8_ownvormSub_cava_64f_LS2, VACA_ARGS_L);
}
VormStatus n8_ownOMP_vormSub_cava_32f_P(VACA_PARAMS_P(float))
{
    return vacaTeamP(n8_ownvormSub_cava_32f_P, VACA_ARGS_P);
}
VormStatus n8_ownOMP_vormSub_cava_64f_P(VACA_PARAMS_P(double))
{
    return vacaTeamP(n8_ownvormSub_cava_64f_P, VACA_ARGS_P);
}
}
