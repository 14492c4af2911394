// vormAdd_vac: team-parallel drivers.

#include "elementwise/vac.hpp"

using namespace vorm;

extern "C" {

VormStatus n8_ownOMP_vormAdd_vac_32f(VAC_PARAMS(float))
{
    return vacTeam(n8_ownvormAdd_vac_32f, n8_ownvormAdd_vac_32f_S2, VAC_ARGS);
}
VormStatus n8_ownOMP_vormAdd_vac_64f(VAC_PARAMS(double))
{
    return vacTeam(n8_ownvormAdd_vac_64f, n8_ownvormAdd_vac_64f_S2, VAC_ARGS);
}
VormStatus n8_ownOMP_vormAdd_vac_32f_L(VAC_PARAMS_L(float))
{
    return vacTeamL(n8_ownvormAdd_vac_32f_L, n8_ownvormAdd_vac_32f_LS2, VAC_ARGS_L);
}
VormStatus n8_ownOMP_vormAdd_vac_64f_L(VAC_PARAMS_L(double))
{
    return vacTeamL(n8_ownvormAdd_vac_64f_L, n8_ownvormAdd_vac_64f_LS2, VAC_ARGS_L);
}
VormStatus n8_ownOMP_vormAdd_vac_32f_P(VAC_PARAMS_P(float)) { return vacTeamP(n8_ownvormAdd_vac_32f_P, VAC_ARGS_P); }
VormStatus n8_ownOMP_vormAdd_vac_64f_P(VAC_PARAMS_P(double)) { return vacTeamP(n8_ownvormAdd_vac_64f_P, VAC_ARGS_P); }
}
