// vormCrossProduct_vav: team-parallel drivers.

#include "frame/driver.hpp"
#include "measures/cross_product.hpp"

using namespace vorm;
using namespace vorm::measures;

extern "C" {

VormStatus n8_ownOMP_vormCrossProduct_vav_32f(CROSS_VAV_PARAMS(float))
{
    return team(crossVav(CROSS_VAV_ARGS), n8_ownvormCrossProduct_vav_32f, n8_ownvormCrossProduct_vav_32f_S2);
}
VormStatus n8_ownOMP_vormCrossProduct_vav_64f(CROSS_VAV_PARAMS(double))
{
    return team(crossVav(CROSS_VAV_ARGS), n8_ownvormCrossProduct_vav_64f, n8_ownvormCrossProduct_vav_64f_S2);
}
VormStatus n8_ownOMP_vormCrossProduct_vav_32f_L(CROSS_VAV_PARAMS_L(float))
{
    return team(crossVavL(CROSS_VAV_ARGS_L), n8_ownvormCrossProduct_vav_32f_L, n8_ownvormCrossProduct_vav_32f_LS2);
}
VormStatus n8_ownOMP_vormCrossProduct_vav_64f_L(CROSS_VAV_PARAMS_L(double))
{
    return team(crossVavL(CROSS_VAV_ARGS_L), n8_ownvormCrossProduct_vav_64f_L, n8_ownvormCrossProduct_vav_64f_LS2);
}
VormStatus n8_ownOMP_vormCrossProduct_vav_64f_P(CROSS_VAV_PARAMS_P(double))
{
    return team(crossVavP(CROSS_VAV_ARGS_P), n8_ownvormCrossProduct_vav_64f_P);
}
}
