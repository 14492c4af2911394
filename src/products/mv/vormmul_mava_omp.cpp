// vormMul_mava: team-parallel drivers.

#include "products/mava.hpp"

using namespace vorm;

extern "C" {

VormStatus n8_ownOMP_vormMul_mava_32f(MAVA_PARAMS(float))
{
    return mavaTeam(n8_ownvormMul_mava_32f, n8_ownvormMul_mava_32f_S2, MAVA_ARGS);
}
VormStatus n8_ownOMP_vormMul_mava_64f(MAVA_PARAMS(double))
{
    return mavaTeam(n8_ownvormMul_mava_64f, n8_ownvormMul_mava_64f_S2, MAVA_ARGS);
}
VormStatus n8_ownOMP_vormMul_mava_32f_L(MAVA_PARAMS_L(float))
{
    return mavaTeamL(n8_ownvormMul_mava_32f_L, n8_ownvormMul_mava_32f_LS2, MAVA_ARGS_L);
}
VormStatus n8_ownOMP_vormMul_mava_64f_L(MAVA_PARAMS_L(double))
{
    return mavaTeamL(n8_ownvormMul_mava_64f_L, n8_ownvormMul_mava_64f_LS2, MAVA_ARGS_L);
}
VormStatus n8_ownOMP_vormMul_mava_32f_P(MAVA_PARAMS_P(float))
{
    return mavaTeamP(n8_ownvormMul_mava_32f_P, MAVA_ARGS_P);
}
VormStatus n8_ownOMP_vormMul_mava_64f_P(MAVA_PARAMS_P(double))
{
    return mavaTeamP(n8_ownvormMul_mava_64f_P, MAVA_ARGS_P);
}
}
