// vormDotProduct_vava: public layers, and the kernels for elements anywhere.

#include "measures/calls.hpp"
#include "measures/dot/dot.hpp"

using namespace vorm;
using namespace vorm::measures;

extern "C" {

VormStatus n8_vormDotProduct_vava_32f(DOT_VAVA_PARAMS(float))
{
    return checked<21600>(dotVava(DOT_VAVA_ARGS), n8_ownOMP_vormDotProduct_vava_32f, n8_ownvormDotProduct_vava_32f,
                          n8_ownvormDotProduct_vava_32f_S2, DOT_VAVA_ARGS);
}
VormStatus n8_vormDotProduct_vava_64f(DOT_VAVA_PARAMS(double))
{
    return checked<21600>(dotVava(DOT_VAVA_ARGS), n8_ownOMP_vormDotProduct_vava_64f, n8_ownvormDotProduct_vava_64f,
                          n8_ownvormDotProduct_vava_64f_S2, DOT_VAVA_ARGS);
}
VormStatus n8_vormDotProduct_vava_32f_L(DOT_VAVA_PARAMS_L(float))
{
    return checked<14400>(dotVavaL(DOT_VAVA_ARGS_L), n8_ownOMP_vormDotProduct_vava_32f_L,
                          n8_ownvormDotProduct_vava_32f_L, n8_ownvormDotProduct_vava_32f_LS2, DOT_VAVA_ARGS_L);
}
VormStatus n8_vormDotProduct_vava_64f_L(DOT_VAVA_PARAMS_L(double))
{
    return checked<14400>(dotVavaL(DOT_VAVA_ARGS_L), n8_ownOMP_vormDotProduct_vava_64f_L,
                          n8_ownvormDotProduct_vava_64f_L, n8_ownvormDotProduct_vava_64f_LS2, DOT_VAVA_ARGS_L);
}
VormStatus n8_vormDotProduct_vava_32f_P(DOT_VAVA_PARAMS_P(float))
{
    return checked<21600>(dotVavaP(DOT_VAVA_ARGS_P), n8_ownOMP_vormDotProduct_vava_32f_P,
                          n8_ownvormDotProduct_vava_32f_P, DOT_VAVA_ARGS_P);
}
VormStatus n8_vormDotProduct_vava_64f_P(DOT_VAVA_PARAMS_P(double))
{
    return checked<21600>(dotVavaP(DOT_VAVA_ARGS_P), n8_ownOMP_vormDotProduct_vava_64f_P,
                          n8_ownvormDotProduct_vava_64f_P, DOT_VAVA_ARGS_P);
}

VormStatus n8_ownvormDotProduct_vava_32f_S2(DOT_VAVA_PARAMS(float))
{
    return anyStrideKernel<Dot>(dotVava(DOT_VAVA_ARGS));
}
VormStatus n8_ownvormDotProduct_vava_64f_S2(DOT_VAVA_PARAMS(double))
{
    return anyStrideKernel<Dot>(dotVava(DOT_VAVA_ARGS));
}
VormStatus n8_ownvormDotProduct_vava_32f_LS2(DOT_VAVA_PARAMS_L(float))
{
    return anyStrideKernel<Dot>(dotVavaL(DOT_VAVA_ARGS_L));
}
VormStatus n8_ownvormDotProduct_vava_64f_LS2(DOT_VAVA_PARAMS_L(double))
{
    return anyStrideKernel<Dot>(dotVavaL(DOT_VAVA_ARGS_L));
}
VormStatus n8_ownvormDotProduct_vava_32f_P(DOT_VAVA_PARAMS_P(float))
{
    return pointerKernel<Dot>(dotVavaP(DOT_VAVA_ARGS_P));
}
VormStatus n8_ownvormDotProduct_vava_64f_P(DOT_VAVA_PARAMS_P(double))
{
    return pointerKernel<Dot>(dotVavaP(DOT_VAVA_ARGS_P));
}
}
