// vormMul_tav: team-parallel drivers.

#include "products/mav.hpp"

using namespace vorm;

extern "C" {

VormStatus n8_ownOMP_vormMul_tav_32f(MAV_PARAMS(float))
{
    return mavTeam(n8_ownvormMul_tav_32f, n8_ownvormMul_tav_32f_S2, MAV_ARGS);
}
VormStatus n8_ownOMP_vormMul_tav_64f(MAV_PARAMS(double))
{
    return mavTeam(n8_ownvormMul_tav_64f, n8_ownvormMul_tav_64f_S2, MAV_ARGS);
}
VormStatus n8_ownOMP_vormMul_tav_32f_L(MAV_PARAMS_L(float))
{
    return mavTeamL(n8_ownvormMul_tav_32f_L, n8_ownvormMul_tav_32f_LS2, MAV_ARGS_L);
}
VormStatus n8_ownOMP_vormMul_tav_64f_L(MAV_PARAMS_L(double))
{
    return mavTeamL(n8_ownvormMul_tav_64f_L, n8_ownvormMul_tav_64f_LS2, MAV_ARGS_L);
}
VormStatus n8_ownOMP_vormMul_tav_32f_P(MAV_PARAMS_P(float)) { return mavTeamP(n8_ownvormMul_tav_32f_P, MAV_ARGS_P); }
VormStatus n8_ownOMP_vormMul_tav_64f_P(MAV_PARAMS_P(double)) { return mavTeamP(n8_ownvormMul_tav_64f_P, MAV_ARGS_P); }
}
