// vormLUBackSubst_mava: team-parallel drivers.

#include "factor/lu_back_subst.hpp"

using namespace vorm;

extern "C" {

VormStatus n8_ownOMP_vormLUBackSubst_mava_32f(LU_MAVA_PARAMS(float))
{
    return luMavaTeam(n8_ownvormLUBackSubst_mava_32f, n8_ownvormLUBackSubst_mava_32f_S2, LU_MAVA_ARGS);
}
VormStatus n8_ownOMP_vormLUBackSubst_mava_64f(LU_MAVA_PARAMS(double))
{
    return luMavaTeam(n8_ownvormLUBackSubst_mava_64f, n8_ownvormLUBackSubst_mava_64f_S2, LU_MAVA_ARGS);
}
VormStatus n8_ownOMP_vormLUBackSubst_mava_32f_L(LU_MAVA_PARAMS_L(float))
{
    return luMavaTeamL(n8_ownvormLUBackSubst_mava_32f_L, n8_ownvormLUBackSubst_mava_32f_LS2, LU_MAVA_ARGS_L);
}
VormStatus n8_ownOMP_vormLUBackSubst_mava_64f_L(LU_MAVA_PARAMS_L(double))
{
    return luMavaTeamL(n8_ownvormLUBackSubst_mava_64f_L, n8_ownvormLUBackSubst_mava_64f_LS2, LU_MAVA_ARGS_L);
}
VormStatus n8_ownOMP_vormLUBackSubst_mava_32f_P(LU_MAVA_PARAMS_P(float))
{
    return luMavaTeamP(n8_ownvormLUBackSubst_mava_32f_P, LU_MAVA_ARGS_P);
}
VormStatus n8_ownOMP_vormLUBackSubst_mava_64f_P(LU_MAVA_PARAMS_P(double))
{
    return luMavaTeamP(n8_ownvormLUBackSubst_mava_64f_P, LU_MAVA_ARGS_P);
}

}
