// vormLUBackSubst_mva: team-parallel drivers.

#include "factor/lu_back_subst.hpp"

using namespace vorm;

extern "C" {

VormStatus n8_ownOMP_vormLUBackSubst_mva_32f(LU_MVA_PARAMS(float))
{
    return luMvaTeam(n8_ownvormLUBackSubst_mva_32f, n8_ownvormLUBackSubst_mva_32f_S2, LU_MVA_ARGS);
}
VormStatus n8_ownOMP_vormLUBackSubst_mva_64f(LU_MVA_PARAMS(double))
{
    return luMvaTeam(n8_ownvormLUBackSubst_mva_64f, n8_ownvormLUBackSubst_mva_64f_S2, LU_MVA_ARGS);
}
VormStatus n8_ownOMP_vormLUBackSubst_mva_32f_L(LU_MVA_PARAMS_L(float))
{
    return luMvaTeamL(n8_ownvormLUBackSubst_mva_32f_L, n8_ownvormLUBackSubst_mva_32f_LS2, LU_MVA_ARGS_L);
}
VormStatus n8_ownOMP_vormLUBackSubst_mva_64f_L(LU_MVA_PARAMS_L(double))
{
    return luMvaTeamL(n8_ownvormLUBackSubst_mva_64f_L, n8_ownvormLUBackSubst_mva_64f_LS2, LU_MVA_ARGS_L);
}
VormStatus n8_ownOMP_vormLUBackSubst_mva_32f_P(LU_MVA_PARAMS_P(float))
{
    return luMvaTeamP(n8_ownvormLUBackSubst_mva_32f_P, LU_MVA_ARGS_P);
}
VormStatus n8_ownOMP_vormLUBackSubst_mva_64f_P(LU_MVA_PARAMS_P(double))
{
    return luMvaTeamP(n8_ownvormLUBackSubst_mva_64f_P, LU_MVA_ARGS_P);
}

}
