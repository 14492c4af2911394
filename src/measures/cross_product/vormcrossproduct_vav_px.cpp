// vormCrossProduct_vav: public layers, and the kernels for elements anywhere.

#include "measures/cross.hpp"
#include "measures/cross_product.hpp"

using namespace vorm;
using namespace vorm::measures;

extern "C" {

VormStatus n8_vormCrossProduct_vav_32f(CROSS_VAV_PARAMS(float))
{
    return checked<crossLimit>(crossVav(CROSS_VAV_ARGS), n8_ownOMP_vormCrossProduct_vav_32f,
                               n8_ownvormCrossProduct_vav_32f, n8_ownvormCrossProduct_vav_32f_S2, CROSS_VAV_ARGS);
}
VormStatus n8_vormCrossProduct_vav_64f(CROSS_VAV_PARAMS(double))
{
    return checked<crossLimit>(crossVav(CROSS_VAV_ARGS), n8_ownOMP_vormCrossProduct_vav_64f,
                               n8_ownvormCrossProduct_vav_64f, n8_ownvormCrossProduct_vav_64f_S2, CROSS_VAV_ARGS);
}
VormStatus n8_vormCrossProduct_vav_32f_L(CROSS_VAV_PARAMS_L(float))
{
    return checked<crossLimitL>(crossVavL(CROSS_VAV_ARGS_L), n8_ownOMP_vormCrossProduct_vav_32f_L,
                                n8_ownvormCrossProduct_vav_32f_L, n8_ownvormCrossProduct_vav_32f_LS2, CROSS_VAV_ARGS_L);
}
VormStatus n8_vormCrossProduct_vav_64f_L(CROSS_VAV_PARAMS_L(double))
{
    return checked<crossLimitL>(crossVavL(CROSS_VAV_ARGS_L), n8_ownOMP_vormCrossProduct_vav_64f_L,
                                n8_ownvormCrossProduct_vav_64f_L, n8_ownvormCrossProduct_vav_64f_LS2, CROSS_VAV_ARGS_L);
}
// Unlike all other array members it has no driver.
VormStatus n8_vormCrossProduct_vav_32f_P(CROSS_VAV_PARAMS_P(float))
{
    return checked(crossVavP(CROSS_VAV_ARGS_P), n8_ownvormCrossProduct_vav_32f_P, CROSS_VAV_ARGS_P);
}
VormStatus n8_vormCrossProduct_vav_64f_P(CROSS_VAV_PARAMS_P(double))
{
    return checked<crossLimitP>(crossVavP(CROSS_VAV_ARGS_P), n8_ownOMP_vormCrossProduct_vav_64f_P,
                                n8_ownvormCrossProduct_vav_64f_P, CROSS_VAV_ARGS_P);
}

VormStatus n8_ownvormCrossProduct_vav_32f_S2(CROSS_VAV_PARAMS(float))
{
    return anyStrideCross(crossVav(CROSS_VAV_ARGS));
}
VormStatus n8_ownvormCrossProduct_vav_64f_S2(CROSS_VAV_PARAMS(double))
{
    return anyStrideCross(crossVav(CROSS_VAV_ARGS));
}
VormStatus n8_ownvormCrossProduct_vav_32f_LS2(CROSS_VAV_PARAMS_L(float))
{
    return anyStrideCross(crossVavL(CROSS_VAV_ARGS_L));
}
VormStatus n8_ownvormCrossProduct_vav_64f_LS2(CROSS_VAV_PARAMS_L(double))
{
    return anyStrideCross(crossVavL(CROSS_VAV_ARGS_L));
}
VormStatus n8_ownvormCrossProduct_vav_32f_P(CROSS_VAV_PARAMS_P(float))
{
    return pointerCross(crossVavP(CROSS_VAV_ARGS_P));
}
VormStatus n8_ownvormCrossProduct_vav_64f_P(CROSS_VAV_PARAMS_P(double))
{
    return pointerCross(crossVavP(CROSS_VAV_ARGS_P));
}
}
