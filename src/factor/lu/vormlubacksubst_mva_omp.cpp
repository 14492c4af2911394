// vormLUBackSubst_mva: team-parallel drivers.

#include "factor/lu/lu_back_subst.hpp"
#include "frame/driver.hpp"

using namespace vorm;
using namespace vorm::factor;

extern "C" {

VormStatus n8_ownOMP_vormLUBackSubst_mva_32f(LU_MVA_PARAMS(float))
{
    return team(luMva(LU_MVA_ARGS), n8_ownvormLUBackSubst_mva_32f, n8_ownvormLUBackSubst_mva_32f_S2);
}
VormStatus n8_ownOMP_vormLUBackSubst_mva_64f(LU_MVA_PARAMS(double))
{
    return team(luMva(LU_MVA_ARGS), n8_ownvormLUBackSubst_mva_64f, n8_ownvormLUBackSubst_mva_64f_S2);
}
VormStatus n8_ownOMP_vormLUBackSubst_mva_32f_L(LU_MVA_PARAMS_L(float))
{
    return team(luMvaL(LU_MVA_ARGS_L), n8_ownvormLUBackSubst_mva_32f_L, n8_ownvormLUBackSubst_mva_32f_LS2);
}
VormStatus n8_ownOMP_vormLUBackSubst_mva_64f_L(LU_MVA_PARAMS_L(double))
{
    return team(luMvaL(LU_MVA_ARGS_L), n8_ownvormLUBackSubst_mva_64f_L, n8_ownvormLUBackSubst_mva_64f_LS2);
}
VormStatus n8_ownOMP_vormLUBackSubst_mva_32f_P(LU_MVA_PARAMS_P(float))
{
    return team(luMvaP(LU_MVA_ARGS_P), n8_ownvormLUBackSubst_mva_32f_P);
}
VormStatus n8_ownOMP_vormLUBackSubst_mva_64f_P(LU_MVA_PARAMS_P(double))
{
    return team(luMvaP(LU_MVA_ARGS_P), n8_ownvormLUBackSubst_mva_64f_P);
}
}
