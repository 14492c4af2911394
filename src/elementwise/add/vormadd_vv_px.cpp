// vormAdd_vv: public layers, and the kernels for elements anywhere.

#include "elementwise/calls.hpp"
#include "elementwise/shapes/vv.hpp"

using namespace vorm;
using namespace vorm::elementwise;

extern "C" {

VormStatus n8_vormAdd_vv_32f(VV_PARAMS(float))
{
    return checked(vv(VV_ARGS), n8_ownvormAdd_vv_32f, n8_ownvormAdd_vv_32f_S2, VV_ARGS);
}
VormStatus n8_vormAdd_vv_64f(VV_PARAMS(double))
{
    return checked(vv(VV_ARGS), n8_ownvormAdd_vv_64f, n8_ownvormAdd_vv_64f_S2, VV_ARGS);
}
VormStatus n8_vormAdd_vv_32f_P(VV_PARAMS_P(float))
{
    return checked(vvP(VV_ARGS_P), n8_ownvormAdd_vv_32f_P, VV_ARGS_P);
}
VormStatus n8_vormAdd_vv_64f_P(VV_PARAMS_P(double))
{
    return checked(vvP(VV_ARGS_P), n8_ownvormAdd_vv_64f_P, VV_ARGS_P);
}

VormStatus n8_ownvormAdd_vv_32f_S2(VV_PARAMS(float)) { return anyStrideKernel<Add>(vv(VV_ARGS)); }
VormStatus n8_ownvormAdd_vv_64f_S2(VV_PARAMS(double)) { return anyStrideKernel<Add>(vv(VV_ARGS)); }
VormStatus n8_ownvormAdd_vv_32f_P(VV_PARAMS_P(float)) { return anyStrideKernel<Add>(vvP(VV_ARGS_P)); }
VormStatus n8_ownvormAdd_vv_64f_P(VV_PARAMS_P(double)) { return anyStrideKernel<Add>(vvP(VV_ARGS_P)); }
}
