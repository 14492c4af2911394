// vormCrossProduct_vva: team-parallel drivers.

#include "frame/driver.hpp"
#include "measures/cross_product.hpp"

using namespace vorm;
using namespace vorm::measures;

extern "C" {

VormStatus n8_ownOMP_vormCrossProduct_vva_32f(CROSS_VVA_PARAMS(float))
{
    return team(crossVva(CROSS_VVA_ARGS), n8_ownvormCrossProduct_vva_32f, n8_ownvormCrossProduct_vva_32f_S2);
}
VormStatus n8_ownOMP_vormCrossProduct_vva_64f(CROSS_VVA_PARAMS(double))
{
    return team(crossVva(CROSS_VVA_ARGS), n8_ownvormCrossProduct_vva_64f, n8_ownvormCrossProduct_vva_64f_S2);
}
VormStatus n8_ownOMP_vormCrossProduct_vva_32f_L(CROSS_VVA_PARAMS_L(float))
{
    return team(crossVvaL(CROSS_VVA_ARGS_L), n8_ownvormCrossProduct_vva_32f_L, n8_ownvormCrossProduct_vva_32f_LS2);
}
VormStatus n8_ownOMP_vormCrossProduct_vva_64f_L(CROSS_VVA_PARAMS_L(double))
{
    return team(crossVvaL(CROSS_VVA_ARGS_L), n8_ownvormCrossProduct_vva_64f_L, n8_ownvormCrossProduct_vva_64f_LS2);
}
VormStatus n8_ownOMP_vormCrossProduct_vva_32f_P(CROSS_VVA_PARAMS_P(float))
{
    return team(crossVvaP(CROSS_VVA_ARGS_P), n8_ownvormCrossProduct_vva_32f_P);
}
VormStatus n8_ownOMP_vormCrossProduct_vva_64f_P(CROSS_VVA_PARAMS_P(double))
{
    return team(crossVvaP(CROSS_VVA_ARGS_P), n8_ownvormCrossProduct_vva_64f_P);
}
}
