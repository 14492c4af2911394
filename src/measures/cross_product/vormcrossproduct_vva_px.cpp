// vormCrossProduct_vva: public layers, and the kernels for elements anywhere.

#include "measures/cross.hpp"
#include "measures/cross_product.hpp"

using namespace vorm;
using namespace vorm::measures;

extern "C" {

VormStatus n8_vormCrossProduct_vva_32f(CROSS_VVA_PARAMS(float))
{
    return checked<crossLimit>(crossVva(CROSS_VVA_ARGS), n8_ownOMP_vormCrossProduct_vva_32f,
                               n8_ownvormCrossProduct_vva_32f, n8_ownvormCrossProduct_vva_32f_S2, CROSS_VVA_ARGS);
}
VormStatus n8_vormCrossProduct_vva_64f(CROSS_VVA_PARAMS(double))
{
    return checked<crossLimit>(crossVva(CROSS_VVA_ARGS), n8_ownOMP_vormCrossProduct_vva_64f,
                               n8_ownvormCrossProduct_vva_64f, n8_ownvormCrossProduct_vva_64f_S2, CROSS_VVA_ARGS);
}
VormStatus n8_vormCrossProduct_vva_32f_L(CROSS_VVA_PARAMS_L(float))
{
    return checked<crossLimitL>(crossVvaL(CROSS_VVA_ARGS_L), n8_ownOMP_vormCrossProduct_vva_32f_L,
                                n8_ownvormCrossProduct_vva_32f_L, n8_ownvormCrossProduct_vva_32f_LS2, CROSS_VVA_ARGS_L);
}
VormStatus n8_vormCrossProduct_vva_64f_L(CROSS_VVA_PARAMS_L(double))
{
    return checked<crossLimitL>(crossVvaL(CROSS_VVA_ARGS_L), n8_ownOMP_vormCrossProduct_vva_64f_L,
                                n8_ownvormCrossProduct_vva_64f_L, n8_ownvormCrossProduct_vva_64f_LS2, CROSS_VVA_ARGS_L);
}
VormStatus n8_vormCrossProduct_vva_32f_P(CROSS_VVA_PARAMS_P(float))
{
    return checked<crossLimitP>(crossVvaP(CROSS_VVA_ARGS_P), n8_ownOMP_vormCrossProduct_vva_32f_P,
                                n8_ownvormCrossProduct_vva_32f_P, CROSS_VVA_ARGS_P);
}
VormStatus n8_vormCrossProduct_vva_64f_P(CROSS_VVA_PARAMS_P(double))
{
    return checked<crossLimitP>(crossVvaP(CROSS_VVA_ARGS_P), n8_ownOMP_vormCrossProduct_vva_64f_P,
                                n8_ownvormCrossProduct_vva_64f_P, CROSS_VVA_ARGS_P);
}

VormStatus n8_ownvormCrossProduct_vva_32f_S2(CROSS_VVA_PARAMS(float))
{
    return anyStrideCross(crossVva(CROSS_VVA_ARGS));
}
VormStatus n8_ownvormCrossProduct_vva_64f_S2(CROSS_VVA_PARAMS(double))
{
    return anyStrideCross(crossVva(CROSS_VVA_ARGS));
}
VormStatus n8_ownvormCrossProduct_vva_32f_LS2(CROSS_VVA_PARAMS_L(float))
{
    return anyStrideCross(crossVvaL(CROSS_VVA_ARGS_L));
}
VormStatus n8_ownvormCrossProduct_vva_64f_LS2(CROSS_VVA_PARAMS_L(double))
{
    return anyStrideCross(crossVvaL(CROSS_VVA_ARGS_L));
}
VormStatus n8_ownvormCrossProduct_vva_32f_P(CROSS_VVA_PARAMS_P(float))
{
    return pointerCross(crossVvaP(CROSS_VVA_ARGS_P));
}
VormStatus n8_ownvormCrossProduct_vva_64f_P(CROSS_VVA_PARAMS_P(double))
{
    return pointerCross(crossVvaP(CROSS_VVA_ARGS_P));
}
}
