// vormAdd_vav: team-parallel drivers.

#include "elementwise/vav.hpp"

using namespace vorm;

extern "C" {

VormStatus n8_ownOMP_vormAdd_vav_32f(VAV_PARAMS(float))
{
    return vavTeam(n8_ownvormAdd_vav_32f, n8_ownvormAdd_vav_32f_S2, VAV_ARGS);
}
VormStatus n8_ownOMP_vormAdd_vav_64f(VAV_PARAMS(double))
{
    return vavTeam(n8_ownvormAdd_vav_64f, n8_ownvormAdd_vav_64f_S2, VAV_ARGS);
}
VormStatus n8_ownOMP_vormAdd_vav_32f_L(VAV_PARAMS_L(float))
{
    return vavTeamL(n8_ownvormAdd_vav_32f_L, n8_ownvormAdd_vav_32f_LS2, VAV_ARGS_L);
}
VormStatus n8_ownOMP_vormAdd_vav_64f_L(VAV_PARAMS_L(double))
{
    return vavTeamL(n8_ownvormAdd_vav_64f_L, n8_ownvormAdd_vav_64f_LS2, VAV_ARGS_L);
}
VormStatus n8_ownOMP_vormAdd_vav_32f_P(VAV_PARAMS_P(float)) { return vavTeamP(n8_ownvormAdd_vav_32f_P, VAV_ARGS_P); }
VormStatus n8_ownOMP_vormAdd_vav_64f_P(VAV_PARAMS_P(double)) { return vavTeamP(n8_ownvormAdd_vav_64f_P, VAV_ARGS_P); }
}
