// vormLComb_vv: public layers, and the kernels for elements anywhere.

#include "elementwise/calls.hpp"
#include "elementwise/shapes/lcomb_vv.hpp"

using namespace vorm;
using namespace vorm::elementwise;

extern "C" {

VormStatus n8_vormLComb_vv_32f(LCOMB_VV_PARAMS(float))
{
    return checked(lCombVv(LCOMB_VV_ARGS), n8_ownvormLComb_vv_32f, n8_ownvormLComb_vv_32f_S2, LCOMB_VV_ARGS);
}
VormStatus n8_vormLComb_vv_64f(LCOMB_VV_PARAMS(double))
{
    return checked(lCombVv(LCOMB_VV_ARGS), n8_ownvormLComb_vv_64f, n8_ownvormLComb_vv_64f_S2, LCOMB_VV_ARGS);
}
VormStatus n8_vormLComb_vv_32f_P(LCOMB_VV_PARAMS_P(float))
{
    return checked(lCombVvP(LCOMB_VV_ARGS_P), n8_ownvormLComb_vv_32f_P, LCOMB_VV_ARGS_P);
}
VormStatus n8_vormLComb_vv_64f_P(LCOMB_VV_PARAMS_P(double))
{
    return checked(lCombVvP(LCOMB_VV_ARGS_P), n8_ownvormLComb_vv_64f_P, LCOMB_VV_ARGS_P);
}

VormStatus n8_ownvormLComb_vv_32f_S2(LCOMB_VV_PARAMS(float))
{
    return anyStrideKernel<LComb<float>>(lCombVv(LCOMB_VV_ARGS));
}
VormStatus n8_ownvormLComb_vv_64f_S2(LCOMB_VV_PARAMS(double))
{
    return anyStrideKernel<LComb<double>>(lCombVv(LCOMB_VV_ARGS));
}
VormStatus n8_ownvormLComb_vv_32f_P(LCOMB_VV_PARAMS_P(float))
{
    return anyStrideKernel<LComb<float>>(lCombVvP(LCOMB_VV_ARGS_P));
}
VormStatus n8_ownvormLComb_vv_64f_P(LCOMB_VV_PARAMS_P(double))
{
    return anyStrideKernel<LComb<double>>(lCombVvP(LCOMB_VV_ARGS_P));
}
}
