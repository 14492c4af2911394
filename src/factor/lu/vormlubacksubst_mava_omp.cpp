// vormLUBackSubst_mava: team-parallel drivers.

#include "factor/lu/lu_back_subst.hpp"
#include "frame/driver.hpp"

using namespace vorm;
using namespace vorm::factor;

extern "C" {

VormStatus n8_ownOMP_vormLUBackSubst_mava_32f(LU_MAVA_PARAMS(float))
{
    return team(luMava(LU_MAVA_ARGS), n8_ownvormLUBackSubst_mava_32f, n8_ownvormLUBackSubst_mava_32f_S2);
}
VormStatus n8_ownOMP_vormLUBackSubst_mava_64f(LU_MAVA_PARAMS(double))
{
    return team(luMava(LU_MAVA_ARGS), n8_ownvormLUBackSubst_mava_64f, n8_ownvormLUBackSubst_mava_64f_S2);
}
VormStatus n8_ownOMP_vormLUBackSubst_mava_32f_L(LU_MAVA_PARAMS_L(float))
{
    return team(luMavaL(LU_MAVA_ARGS_L), n8_ownvormLUBackSubst_mava_32f_L, n8_ownvormLUBackSubst_mava_32f_LS2);
}
VormStatus n8_ownOMP_vormLUBackSubst_mava_64f_L(LU_MAVA_PARAMS_L(double))
{
    return team(luMavaL(LU_MAVA_ARGS_L), n8_ownvormLUBackSubst_mava_64f_L, n8_ownvormLUBackSubst_mava_64f_LS2);
}
VormStatus n8_ownOMP_vormLUBackSubst_mava_32f_P(LU_MAVA_PARAMS_P(float))
{
    return team(luMavaP(LU_MAVA_ARGS_P), n8_ownvormLUBackSubst_mava_32f_P);
}
VormStatus n8_ownOMP_vormLUBackSubst_mava_64f_P(LU_MAVA_PARAMS_P(double))
{
    return team(luMavaP(LU_MAVA_ARGS_P), n8_ownvormLUBackSubst_mava_64f_P);
}
}
