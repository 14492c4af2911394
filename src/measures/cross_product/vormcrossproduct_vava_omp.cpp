// vormCrossProduct_vava: team-parallel drivers.

#include "frame/driver.hpp"
#include "measures/cross_product.hpp"

using namespace vorm;
using namespace vorm::measures;

extern "C" {

VormStatus n8_ownOMP_vormCrossProduct_vava_32f(CROSS_VAVA_PARAMS(float))
{
    return team(crossVava(CROSS_VAVA_ARGS), n8_ownvormCrossProduct_vava_32f, n8_ownvormCrossProduct_vava_32f_S2);
}
VormStatus n8_ownOMP_vormCrossProduct_vava_64f(CROSS_VAVA_PARAMS(double))
{
    return team(crossVava(CROSS_VAVA_ARGS), n8_ownvormCrossProduct_vava_64f, n8_ownvormCrossProduct_vava_64f_S2);
}
VormStatus n8_ownOMP_vormCrossProduct_vava_32f_L(CROSS_VAVA_PARAMS_L(float))
{
    return team(crossVavaL(CROSS_VAVA_ARGS_L), n8_ownvormCrossProduct_vava_32f_L, n8_ownvormCrossProduct_vava_32f_LS2);
}
VormStatus n8_ownOMP_vormCrossProduct_vava_64f_L(CROSS_VAVA_PARAMS_L(double))
{
    return team(crossVavaL(CROSS_VAVA_ARGS_L), n8_ownvormCrossProduct_vava_64f_L, n8_ownvormCrossProduct_vava_64f_LS2);
}
VormStatus n8_ownOMP_vormCrossProduct_vava_32f_P(CROSS_VAVA_PARAMS_P(float))
{
    return team(crossVavaP(CROSS_VAVA_ARGS_P), n8_ownvormCrossProduct_vava_32f_P);
}
VormStatus n8_ownOMP_vormCrossProduct_vava_64f_P(CROSS_VAVA_PARAMS_P(double))
{
    return team(crossVavaP(CROSS_VAVA_ARGS_P), n8_ownvormCrossProduct_vava_64f_P);
}
}
