// vormSub_vva: team-parallel drivers.

#include "elementwise/shapes/vva.hpp"
#include "frame/driver.hpp"

using namespace vorm;
using namespace vorm::elementwise;

extern "C" {

VormStatus n8_ownOMP_vormSub_vva_32f(VVA_PARAMS(float))
{
    return team(vva(VVA_ARGS), n8_ownvormSub_vva_32f, n8_ownvormSub_vva_32f_S2);
}
VormStatus n8_ownOMP_vormSub_vva_64f(VVA_PARAMS(double))
{
    return team(vva(VVA_ARGS), n8_ownvormSub_vva_64f, n8_ownvormSub_vva_64f_S2);
}
VormStatus n8_ownOMP_vormSub_vva_32f_L(VVA_PARAMS_L(float))
{
    return team(vvaL(VVA_ARGS_L), n8_ownvormSub_vva_32f_L, n8_ownvormSub_vva_32f_LS2);
}
VormStatus n8_ownOMP_vormSub_vva_64f_L(VVA_PARAMS_L(double))
{
    return team(vvaL(VVA_ARGS_L), n8_ownvormSub_vva_64f_L, n8_ownvormSub_vva_64f_LS2);
}
VormStatus n8_ownOMP_vormSub_vva_32f_P(VVA_PARAMS_P(float)) { return team(vvaP(VVA_ARGS_P), n8_ownvormSub_vva_32f_P); }
VormStatus n8_ownOMP_vormSub_vva_64f_P(VVA_PARAMS_P(double)) { return team(vvaP(VVA_ARGS_P), n8_ownvormSub_vva_64f_P); }
}
