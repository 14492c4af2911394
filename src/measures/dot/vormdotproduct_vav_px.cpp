// vormDotProduct_vav: public layers, and the kernels for elements anywhere.

#include "measures/calls.hpp"
#include "measures/dot/dot.hpp"

using namespace vorm;
using namespace vorm::measures;

extern "C" {

VormStatus n8_vormDotProduct_vav_32f(DOT_VAV_PARAMS(float))
{
    return checked<21600>(dotVav(DOT_VAV_ARGS), n8_ownOMP_vormDotProduct_vav_32f, n8_ownvormDotProduct_vav_32f,
                          n8_ownvormDotProduct_vav_32f_S2, DOT_VAV_ARGS);
}
VormStatus n8_vormDotProduct_vav_64f(DOT_VAV_PARAMS(double))
{
    return checked<21600>(dotVav(DOT_VAV_ARGS), n8_ownOMP_vormDotProduct_vav_64f, n8_ownvormDotProduct_vav_64f,
                          n8_ownvormDotProduct_vav_64f_S2, DOT_VAV_ARGS);
}
VormStatus n8_vormDotProduct_vav_32f_L(DOT_VAV_PARAMS_L(float))
{
    return checked<14400>(dotVavL(DOT_VAV_ARGS_L), n8_ownOMP_vormDotProduct_vav_32f_L, n8_ownvormDotProduct_vav_32f_L,
                          n8_ownvormDotProduct_vav_32f_LS2, DOT_VAV_ARGS_L);
}
VormStatus n8_vormDotProduct_vav_64f_L(DOT_VAV_PARAMS_L(double))
{
    return checked<14400>(dotVavL(DOT_VAV_ARGS_L), n8_ownOMP_vormDotProduct_vav_64f_L, n8_ownvormDotProduct_vav_64f_L,
                          n8_ownvormDotProduct_vav_64f_LS2, DOT_VAV_ARGS_L);
}
VormStatus n8_vormDotProduct_vav_32f_P(DOT_VAV_PARAMS_P(float))
{
    return checked<21600>(dotVavP(DOT_VAV_ARGS_P), n8_ownOMP_vormDotProduct_vav_32f_P, n8_ownvormDotProduct_vav_32f_P,
                          DOT_VAV_ARGS_P);
}
VormStatus n8_vormDotProduct_vav_64f_P(DOT_VAV_PARAMS_P(double))
{
    return checked<21600>(dotVavP(DOT_VAV_ARGS_P), n8_ownOMP_vormDotProduct_vav_64f_P, n8_ownvormDotProduct_vav_64f_P,
                          DOT_VAV_ARGS_P);
}

VormStatus n8_ownvormDotProduct_vav_32f_S2(DOT_VAV_PARAMS(float)) { return anyStrideKernel<Dot>(dotVav(DOT_VAV_ARGS)); }
VormStatus n8_ownvormDotProduct_vav_64f_S2(DOT_VAV_PARAMS(double))
{
    return anyStrideKernel<Dot>(dotVav(DOT_VAV_ARGS));
}
VormStatus n8_ownvormDotProduct_vav_32f_LS2(DOT_VAV_PARAMS_L(float))
{
    return anyStrideKernel<Dot>(dotVavL(DOT_VAV_ARGS_L));
}
VormStatus n8_ownvormDotProduct_vav_64f_LS2(DOT_VAV_PARAMS_L(double))
{
    return anyStrideKernel<Dot>(dotVavL(DOT_VAV_ARGS_L));
}
VormStatus n8_ownvormDotProduct_vav_32f_P(DOT_VAV_PARAMS_P(float))
{
    return pointerKernel<Dot>(dotVavP(DOT_VAV_ARGS_P));
}
VormStatus n8_ownvormDotProduct_vav_64f_P(DOT_VAV_PARAMS_P(double))
{
    return pointerKernel<Dot>(dotVavP(DOT_VAV_ARGS_P));
}
}
