// vormCrossProduct_vava: public layers, and the kernels for elements anywhere.

#include "measures/cross.hpp"
#include "measures/cross_product.hpp"

using namespace vorm;
using namespace vorm::measures;

extern "C" {

VormStatus n8_vormCrossProduct_vava_32f(CROSS_VAVA_PARAMS(float))
{
    return checked<crossLimit>(crossVava(CROSS_VAVA_ARGS), n8_ownOMP_vormCrossProduct_vava_32f,
                               n8_ownvormCrossProduct_vava_32f, n8_ownvormCrossProduct_vava_32f_S2, CROSS_VAVA_ARGS);
}
VormStatus n8_vormCrossProduct_vava_64f(CROSS_VAVA_PARAMS(double))
{
    return checked<crossLimit>(crossVava(CROSS_VAVA_ARGS), n8_ownOMP_vormCrossProduct_vava_64f,
                               n8_ownvormCrossProduct_vava_64f, n8_ownvormCrossProduct_vava_64f_S2, CROSS_VAVA_ARGS);
}
VormStatus n8_vormCrossProduct_vava_32f_L(CROSS_VAVA_PARAMS_L(float))
{
    return checked<crossLimitL>(crossVavaL(CROSS_VAVA_ARGS_L), n8_ownOMP_vormCrossProduct_vava_32f_L,
                                n8_ownvormCrossProduct_vava_32f_L, n8_ownvormCrossProduct_vava_32f_LS2,
                                CROSS_VAVA_ARGS_L);
}
VormStatus n8_vormCrossProduct_vava_64f_L(CROSS_VAVA_PARAMS_L(double))
{
    return checked<crossLimitL>(crossVavaL(CROSS_VAVA_ARGS_L), n8_ownOMP_vormCrossProduct_vava_64f_L,
                                n8_ownvormCrossProduct_vava_64f_L, n8_ownvormCrossProduct_vava_64f_LS2,
                                CROSS_VAVA_ARGS_L);
}
VormStatus n8_vormCrossProduct_vava_32f_P(CROSS_VAVA_PARAMS_P(float))
{
    return checked<crossLimitP>(crossVavaP(CROSS_VAVA_ARGS_P), n8_ownOMP_vormCrossProduct_vava_32f_P,
                                n8_ownvormCrossProduct_vava_32f_P, CROSS_VAVA_ARGS_P);
}
VormStatus n8_vormCrossProduct_vava_64f_P(CROSS_VAVA_PARAMS_P(double))
{
    return checked<crossLimitP>(crossVavaP(CROSS_VAVA_ARGS_P), n8_ownOMP_vormCrossProduct_vava_64f_P,
                                n8_ownvormCrossProduct_vava_64f_P, CROSS_VAVA_ARGS_P);
}

VormStatus n8_ownvormCrossProduct_vava_32f_S2(CROSS_VAVA_PARAMS(float))
{
    return anyStrideCross(crossVava(CROSS_VAVA_ARGS));
}
VormStatus n8_ownvormCrossProduct_vava_64f_S2(CROSS_VAVA_PARAMS(double))
{
    return anyStrideCross(crossVava(CROSS_VAVA_ARGS));
}
VormStatus n8_ownvormCrossProduct_vava_32f_LS2(CROSS_VAVA_PARAMS_L(float))
{
    return anyStrideCross(crossVavaL(CROSS_VAVA_ARGS_L));
}
VormStatus n8_ownvormCrossProduct_vava_64f_LS2(CROSS_VAVA_PARAMS_L(double))
{
    return anyStrideCross(crossVavaL(CROSS_VAVA_ARGS_L));
}
VormStatus n8_ownvormCrossProduct_vava_32f_P(CROSS_VAVA_PARAMS_P(float))
{
    return pointerCross(crossVavaP(CROSS_VAVA_ARGS_P));
}
VormStatus n8_ownvormCrossProduct_vava_64f_P(CROSS_VAVA_PARAMS_P(double))
{
    return pointerCross(crossVavaP(CROSS_VAVA_ARGS_P));
}
}
