// vormCrossProduct_vv: public layers, and the kernels for elements anywhere.

#include "measures/cross.hpp"
#include "measures/cross_product.hpp"

using namespace vorm;
using namespace vorm::measures;

extern "C" {

VormStatus n8_vormCrossProduct_vv_32f(CROSS_VV_PARAMS(float))
{
    return checked(crossVv(CROSS_VV_ARGS), n8_ownvormCrossProduct_vv_32f, n8_ownvormCrossProduct_vv_32f_S2,
                   CROSS_VV_ARGS);
}
VormStatus n8_vormCrossProduct_vv_64f(CROSS_VV_PARAMS(double))
{
    return checked(crossVv(CROSS_VV_ARGS), n8_ownvormCrossProduct_vv_64f, n8_ownvormCrossProduct_vv_64f_S2,
                   CROSS_VV_ARGS);
}
VormStatus n8_vormCrossProduct_vv_32f_P(CROSS_VV_PARAMS_P(float))
{
    return checked(crossVvP(CROSS_VV_ARGS_P), n8_ownvormCrossProduct_vv_32f_P, CROSS_VV_ARGS_P);
}
VormStatus n8_vormCrossProduct_vv_64f_P(CROSS_VV_PARAMS_P(double))
{
    return checked(crossVvP(CROSS_VV_ARGS_P), n8_ownvormCrossProduct_vv_64f_P, CROSS_VV_ARGS_P);
}

VormStatus n8_ownvormCrossProduct_vv_32f_S2(CROSS_VV_PARAMS(float)) { return anyStrideCross(crossVv(CROSS_VV_ARGS)); }
VormStatus n8_ownvormCrossProduct_vv_64f_S2(CROSS_VV_PARAMS(double)) { return anyStrideCross(crossVv(CROSS_VV_ARGS)); }
VormStatus n8_ownvormCrossProduct_vv_32f_P(CROSS_VV_PARAMS_P(float))
{
    return anyStrideCross(crossVvP(CROSS_VV_ARGS_P));
}
VormStatus n8_ownvormCrossProduct_vv_64f_P(CROSS_VV_PARAMS_P(double))
{
    return anyStrideCross(crossVvP(CROSS_VV_ARGS_P));
}
}
