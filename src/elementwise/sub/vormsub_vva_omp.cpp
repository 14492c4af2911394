// vormSub_vva: team-parallel drivers.

#include "elementwise/vva.hpp"

using namespace vorm;

extern "C" {

VormStatus n8_ownOMP_vormSub_vva_32f(VVA_PARAMS(float))
{
    return vvaTeam(n8_ownvormSub_vva_32f, n8_ownvormSub_vva_32f_S2, VVA_ARGS);
}
VormStatus n8_ownOMP_vormSub_vva_64f(VVA_PARAMS(double))
{
    return vvaTeam(n8_ownvormSub_vva_64f, n8_ownvormSub_vva_64f_S2, VVA_ARGS);
}
VormStatus n8_ownOMP_vormSub_vva_32f_L(VVA_PARAMS_L(float))
{
    return vvaTeamL(n8_ownvormSub_vva_32f_L, n8_ownvormSub_vva_32f_LS2, VVA_ARGS_L);
}
VormStatus n8_ownOMP_vormSub_vva_64f_L(VVA_PARAMS_L(double))
{
    return vvaTeamL(n8_ownvormSub_vva_64f_L, n8_ownvormSub_vva_64f_LS2, VVA_ARGS_L);
}
VormStatus n8_ownOMP_vormSub_vva_32f_P(VVA_PARAMS_P(float)) { return vvaTeamP(n8_ownvormSub_vva_32f_P, VVA_ARGS_P); }
VormStatus n8_ownOMP_vormSub_vva_64f_P(VVA_PARAMS_P(double)) { return vvaTeamP(n8_ownvormSub_vva_64f_P, VVA_ARGS_P); }
}
