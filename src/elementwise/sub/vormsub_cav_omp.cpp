// vormSub_cav: team-parallel drivers.

#include "elementwise/vca.hpp"

using namespace vorm;

extern "C" {

VormStatus n8_ownOMP_vormSub_cav_32f(VCA_PARAMS(float))
{
    return vcaTeam(n8_ownvormSub_cav_32f, n8_ownvormSub_cav_32f_S2, VCA_ARGS);
}
VormStatus n8_ownOMP_vormSub_cav_64f(VCA_PARAMS(double))
{
    return vcaTeam(n8_ownvormSub_cav_64f, n8_ownvormSub_cav_64f_S2, VCA_ARGS);
}
VormStatus n8_ownOMP_vormSub_cav_32f_L(VCA_PARAMS_L(float))
{
    return vcaTeamL(n8_ownvormSub_cav_32f_L, n8_ownvormSub_cav_32f_LS2, VCA_ARGS_L);
}
VormStatus n8_ownOMP_vormSub_cav_64f_L(VCA_PARAMS_L(double))
{
    return vcaTeamL(n8_ownvormSub_cav_64f_L, n8_ownvormSub_cav_64f_LS2, VCA_ARGS_L);
}
VormStatus n8_ownOMP_vormSub_cav_32f_P(VCA_PARAMS_P(float)) { return vcaTeamP(n8_ownvormSub_cav_32f_P, VCA_ARGS_P); }
VormStatus n8_ownOMP_vormSub_cav_64f_P(VCA_PARAMS_P(double)) { return vcaTeamP(n8_ownvormSub_cav_64f_P, VCA_ARGS_P); }
}
