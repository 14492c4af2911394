// vormMul_mva: team-parallel drivers.

#include "products/mva.hpp"

using namespace vorm;

extern "C" {

VormStatus n8_ownOMP_vormMul_mva_32f(MVA_PARAMS(float))
{
    return mvaTeam(n8_ownvormMul_mva_32f, n8_ownvormMul_mva_32f_S2, MVA_ARGS);
}
VormStatus n8_ownOMP_vormMul_mva_64f(MVA_PARAMS(double))
{
    return mvaTeam(n8_ownvormMul_mva_64f, n8_ownvormMul_mva_64f_S2, MVA_ARGS);
}
VormStatus n8_ownOMP_vormMul_mva_32f_L(MVA_PARAMS_L(float))
{
    return mvaTeamL(n8_ownvormMul_mva_32f_L, n8_ownvormMul_mva_32f_LS2, MVA_ARGS_L);
}
VormStatus n8_ownOMP_vormMul_mva_64f_L(MVA_PARAMS_L(double))
{
    return mvaTeamL(n8_ownvormMul_mva_64f_L, n8_ownvormMul_mva_64f_LS2, MVA_ARGS_L);
}
VormStatus n8_ownOMP_vormMul_mva_32f_P(MVA_PARAMS_P(float)) { return mvaTeamP(n8_ownvormMul_mva_32f_P, MVA_ARGS_P); }
VormStatus n8_ownOMP_vormMul_mva_64f_P(MVA_PARAMS_P(double)) { return mvaTeamP(n8_ownvormMul_mva_64f_P, MVA_ARGS_P); }
}
