// vormLComb_vav: public layers, and the kernels for elements anywhere.

#include "elementwise/calls.hpp"
#include "elementwise/shapes/lcomb_vav.hpp"

using namespace vorm;
using namespace vorm::elementwise;

extern "C" {

VormStatus n8_vormLComb_vav_32f(LCOMB_VAV_PARAMS(float))
{
    return checked<4500>(lCombVav(LCOMB_VAV_ARGS), n8_ownOMP_vormLComb_vav_32f, n8_ownvormLComb_vav_32f,
                         n8_ownvormLComb_vav_32f_S2, LCOMB_VAV_ARGS);
}
VormStatus n8_vormLComb_vav_64f(LCOMB_VAV_PARAMS(double))
{
    return checked<4500>(lCombVav(LCOMB_VAV_ARGS), n8_ownOMP_vormLComb_vav_64f, n8_ownvormLComb_vav_64f,
                         n8_ownvormLComb_vav_64f_S2, LCOMB_VAV_ARGS);
}
VormStatus n8_vormLComb_vav_32f_L(LCOMB_VAV_PARAMS_L(float))
{
    return checked<4500, 3750>(lCombVavL(LCOMB_VAV_ARGS_L), n8_ownOMP_vormLComb_vav_32f_L, n8_ownvormLComb_vav_32f_L,
                               n8_ownvormLComb_vav_32f_LS2, LCOMB_VAV_ARGS_L);
}
VormStatus n8_vormLComb_vav_64f_L(LCOMB_VAV_PARAMS_L(double))
{
    return checked<4500>(lCombVavL(LCOMB_VAV_ARGS_L), n8_ownOMP_vormLComb_vav_64f_L, n8_ownvormLComb_vav_64f_L,
                         n8_ownvormLComb_vav_64f_LS2, LCOMB_VAV_ARGS_L);
}
VormStatus n8_vormLComb_vav_32f_P(LCOMB_VAV_PARAMS_P(float))
{
    return checked<4500>(lCombVavP(LCOMB_VAV_ARGS_P), n8_ownOMP_vormLComb_vav_32f_P, n8_ownvormLComb_vav_32f_P,
                         LCOMB_VAV_ARGS_P);
}
VormStatus n8_vormLComb_vav_64f_P(LCOMB_VAV_PARAMS_P(double))
{
    return checked<4500>(lCombVavP(LCOMB_VAV_ARGS_P), n8_ownOMP_vormLComb_vav_64f_P, n8_ownvormLComb_vav_64f_P,
                         LCOMB_VAV_ARGS_P);
}

VormStatus n8_ownvormLComb_vav_32f_S2(LCOMB_VAV_PARAMS(float))
{
    return anyStrideKernel<LComb<float>>(lCombVav(LCOMB_VAV_ARGS));
}
VormStatus n8_ownvormLComb_vav_64f_S2(LCOMB_VAV_PARAMS(double))
{
    return anyStrideKernel<LComb<double>>(lCombVav(LCOMB_VAV_ARGS));
}
VormStatus n8_ownvormLComb_vav_32f_LS2(LCOMB_VAV_PARAMS_L(float))
{
    return anyStrideKernel<LComb<float>>(lCombVavL(LCOMB_VAV_ARGS_L));
}
VormStatus n8_ownvormLComb_vav_64f_LS2(LCOMB_VAV_PARAMS_L(double))
{
    return anyStrideKernel<LComb<double>>(lCombVavL(LCOMB_VAV_ARGS_L));
}
VormStatus n8_ownvormLComb_vav_32f_P(LCOMB_VAV_PARAMS_P(float))
{
    return pointerKernel<LComb<float>>(lCombVavP(LCOMB_VAV_ARGS_P));
}
VormStatus n8_ownvormLComb_vav_64f_P(LCOMB_VAV_PARAMS_P(double))
{
    return pointerKernel<LComb<double>>(lCombVavP(LCOMB_VAV_ARGS_P));
}
}
