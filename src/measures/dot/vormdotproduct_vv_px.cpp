// vormDotProduct_vv: public layers, and the kernels for elements anywhere.

#include "measures/calls.hpp"
#include "measures/dot/dot.hpp"

using namespace vorm;
using namespace vorm::measures;

extern "C" {

VormStatus n8_vormDotProduct_vv_32f(DOT_VV_PARAMS(float))
{
    return checked(dotVv(DOT_VV_ARGS), n8_ownvormDotProduct_vv_32f, n8_ownvormDotProduct_vv_32f_S2, DOT_VV_ARGS);
}
VormStatus n8_vormDotProduct_vv_64f(DOT_VV_PARAMS(double))
{
    return checked(dotVv(DOT_VV_ARGS), n8_ownvormDotProduct_vv_64f, n8_ownvormDotProduct_vv_64f_S2, DOT_VV_ARGS);
}
VormStatus n8_vormDotProduct_vv_32f_P(DOT_VV_PARAMS_P(float))
{
    return checked(dotVvP(DOT_VV_ARGS_P), n8_ownvormDotProduct_vv_32f_P, DOT_VV_ARGS_P);
}
VormStatus n8_vormDotProduct_vv_64f_P(DOT_VV_PARAMS_P(double))
{
    return checked(dotVvP(DOT_VV_ARGS_P), n8_ownvormDotProduct_vv_64f_P, DOT_VV_ARGS_P);
}

VormStatus n8_ownvormDotProduct_vv_32f_S2(DOT_VV_PARAMS(float)) { return anyStrideKernel<Dot>(dotVv(DOT_VV_ARGS)); }
VormStatus n8_ownvormDotProduct_vv_64f_S2(DOT_VV_PARAMS(double)) { return anyStrideKernel<Dot>(dotVv(DOT_VV_ARGS)); }
VormStatus n8_ownvormDotProduct_vv_32f_P(DOT_VV_PARAMS_P(float)) { return anyStrideKernel<Dot>(dotVvP(DOT_VV_ARGS_P)); }
VormStatus n8_ownvormDotProduct_vv_64f_P(DOT_VV_PARAMS_P(double))
{
    return anyStrideKernel<Dot>(dotVvP(DOT_VV_ARGS_P));
}
}
