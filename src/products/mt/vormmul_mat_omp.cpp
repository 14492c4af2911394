// vormMul_mat: team-parallel drivers.

#include "products/mam.hpp"

using namespace vorm;

extern "C" {

VormStatus n8_ownOMP_vormMul_mat_32f(MAM_PARAMS(float))
{
    return mamTeam(n8_ownvormMul_mat_32f, n8_ownvormMul_mat_32f_S2, MAM_ARGS);
}
VormStatus n8_ownOMP_vormMul_mat_64f(MAM_PARAMS(double))
{
    return mamTeam(n8_ownvormMul_mat_64f, n8_ownvormMul_mat_64f_S2, MAM_ARGS);
}
VormStatus n8_ownOMP_vormMul_mat_32f_L(MAM_PARAMS_L(float))
{
    return mamTeamL(n8_ownvormMul_mat_32f_L, n8_ownvormMul_mat_32f_LS2, MAM_ARGS_L);
}
VormStatus n8_ownOMP_vormMul_mat_64f_L(MAM_PARAMS_L(double))
{
    return mamTeamL(n8_ownvormMul_mat_64f_L, n8_ownvormMul_mat_64f_LS2, MAM_ARGS_L);
}
VormStatus n8_ownOMP_vormMul_mat_32f_P(MAM_PARAMS_P(float))
{
    return mamTeamP(n8_ownvormMul_mat_32f_P, MAM_ARGS_P);
}
VormStatus n8_ownOMP_vormMul_mat_64f_P(MAM_PARAMS_P(double))
{
    return mamTeamP(n8_ownvormMul_mat_64f_P, MAM_ARGS_P);
}

}
