// vormMul_tta: team-parallel drivers.

#include "products/mma.hpp"

using namespace vorm;

extern "C" {

VormStatus n8_ownOMP_vormMul_tta_32f(MMA_PARAMS(float))
{
    return mmaTeam(n8_ownvormMul_tta_32f, n8_ownvormMul_tta_32f_S2, MMA_ARGS);
}
VormStatus n8_ownOMP_vormMul_tta_64f(MMA_PARAMS(double))
{
    return mmaTeam(n8_ownvormMul_tta_64f, n8_ownvormMul_tta_64f_S2, MMA_ARGS);
}
VormStatus n8_ownOMP_vormMul_tta_32f_L(MMA_PARAMS_L(float))
{
    return mmaTeamL(n8_ownvormMul_tta_32f_L, n8_ownvormMul_tta_32f_LS2, MMA_ARGS_L);
}
VormStatus n8_ownOMP_vormMul_tta_64f_L(MMA_PARAMS_L(double))
{
    return mmaTeamL(n8_ownvormMul_tta_64f_L, n8_ownvormMul_tta_64f_LS2, MMA_ARGS_L);
}
VormStatus n8_ownOMP_vormMul_tta_32f_P(MMA_PARAMS_P(float))
{
    return mmaTeamP(n8_ownvormMul_tta_32f_P, MMA_ARGS_P);
}
VormStatus n8_ownOMP_vormMul_tta_64f_P(MMA_PARAMS_P(double))
{
    return mmaTeamP(n8_ownvormMul_tta_64f_P, MMA_ARGS_P);
}

}
