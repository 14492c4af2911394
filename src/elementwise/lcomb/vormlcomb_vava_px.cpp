// vormLComb_vava: public layers, and the kernels for elements anywhere.

#include "elementwise/calls.hpp"
#include "elementwise/shapes/lcomb_vava.hpp"

using namespace vorm;
using namespace vorm::elementwise;

extern "C" {

VormStatus n8_vormLComb_vava_32f(LCOMB_VAVA_PARAMS(float))
{
    return checked<4500>(lCombVava(LCOMB_VAVA_ARGS), n8_ownOMP_vormLComb_vava_32f, n8_ownvormLComb_vava_32f,
                         n8_ownvormLComb_vava_32f_S2, LCOMB_VAVA_ARGS);
}
VormStatus n8_vormLComb_vava_64f(LCOMB_VAVA_PARAMS(double))
{
    return checked<4500>(lCombVava(LCOMB_VAVA_ARGS), n8_ownOMP_vormLComb_vava_64f, n8_ownvormLComb_vava_64f,
                         n8_ownvormLComb_vava_64f_S2, LCOMB_VAVA_ARGS);
}
VormStatus n8_vormLComb_vava_32f_L(LCOMB_VAVA_PARAMS_L(float))
{
    return checked<4500, 3750>(lCombVavaL(LCOMB_VAVA_ARGS_L), n8_ownOMP_vormLComb_vava_32f_L,
                               n8_ownvormLComb_vava_32f_L, n8_ownvormLComb_vava_32f_LS2, LCOMB_VAVA_ARGS_L);
}
VormStatus n8_vormLComb_vava_64f_L(LCOMB_VAVA_PARAMS_L(double))
{
    return checked<4500>(lCombVavaL(LCOMB_VAVA_ARGS_L), n8_ownOMP_vormLComb_vava_64f_L, n8_ownvormLComb_vava_64f_L,
                         n8_ownvormLComb_vava_64f_LS2, LCOMB_VAVA_ARGS_L);
}
VormStatus n8_vormLComb_vava_32f_P(LCOMB_VAVA_PARAMS_P(float))
{
    return checked<4500>(lCombVavaP(LCOMB_VAVA_ARGS_P), n8_ownOMP_vormLComb_vava_32f_P, n8_ownvormLComb_vava_32f_P,
                         LCOMB_VAVA_ARGS_P);
}
VormStatus n8_vormLComb_vava_64f_P(LCOMB_VAVA_PARAMS_P(double))
{
    return checked<4500>(lCombVavaP(LCOMB_VAVA_ARGS_P), n8_ownOMP_vormLComb_vava_64f_P, n8_ownvormLComb_vava_64f_P,
                         LCOMB_VAVA_ARGS_P);
}

VormStatus n8_ownvormLComb_vava_32f_S2(LCOMB_VAVA_PARAMS(float))
{
    return anyStrideKernel<LComb<float>>(lCombVava(LCOMB_VAVA_ARGS));
}
VormStatus n8_ownvormLComb_vava_64f_S2(LCOMB_VAVA_PARAMS(double))
{
    return anyStrideKernel<LComb<double>>(lCombVava(LCOMB_VAVA_ARGS));
}
VormStatus n8_ownvormLComb_vava_32f_LS2(LCOMB_VAVA_PARAMS_L(float))
{
    return anyStrideKernel<LComb<float>>(lCombVavaL(LCOMB_VAVA_ARGS_L));
}
VormStatus n8_ownvormLComb_vava_64f_LS2(LCOMB_VAVA_PARAMS_L(double))
{
    return anyStrideKernel<LComb<double>>(lCombVavaL(LCOMB_VAVA_ARGS_L));
}
VormStatus n8_ownvormLComb_vava_32f_P(LCOMB_VAVA_PARAMS_P(float))
{
    return pointerKernel<LComb<float>>(lCombVavaP(LCOMB_VAVA_ARGS_P));
}
VormStatus n8_ownvormLComb_vava_64f_P(LCOMB_VAVA_PARAMS_P(double))
{
    return pointerKernel<LComb<double>>(lCombVavaP(LCOMB_VAVA_ARGS_P));
}
}
