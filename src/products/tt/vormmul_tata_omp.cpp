// vormMul_tata: team-parallel drivers.

#include "products/mama.hpp"

using namespace vorm;

extern "C" {

VormStatus n8_ownOMP_vormMul_tata_32f(MAMA_PARAMS(float))
{
    return mamaTeam(n8_ownvormMul_tata_32f, n8_ownvormMul_tata_32f_S2, MAMA_ARGS);
}
VormStatus n8_ownOMP_vormMul_tata_64f(MAMA_PARAMS(double))
{
    return mamaTeam(n8_ownvormMul_tata_64f, n8_ownvormMul_tata_64f_S2, MAMA_ARGS);
}
VormStatus n8_ownOMP_vormMul_tata_32f_L(MAMA_PARAMS_L(float))
{
    return mamaTeamL(n8_ownvormMul_tata_32f_L, n8_ownvormMul_tata_32f_LS2, MAMA_ARGS_L);
}
VormStatus n8_ownOMP_vormMul_tata_64f_L(MAMA_PARAMS_L(double))
{
    return mamaTeamL(n8_ownvormMul_tata_64f_L, n8_ownvormMul_tata_64f_LS2, MAMA_ARGS_L);
}
VormStatus n8_ownOMP_vormMul_tata_32f_P(MAMA_PARAMS_P(float))
{
    return mamaTeamP(n8_ownvormMul_tata_32f_P, MAMA_ARGS_P);
}
VormStatus n8_ownOMP_vormMul_tata_64f_P(MAMA_PARAMS_P(double))
{
    return mamaTeamP(n8_ownvormMul_tata_64f_P, MAMA_ARGS_P);
}

}
