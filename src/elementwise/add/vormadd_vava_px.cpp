// vormAdd_vava: public layers, and the kernels for elements anywhere.

#include "elementwise/calls.hpp"
#include "elementwise/shapes/vava.hpp"

using namespace vorm;
using namespace vorm::elementwise;

extern "C" {

VormStatus n8_vormAdd_vava_32f(VAVA_PARAMS(float))
{
    return checked<4800>(vava(VAVA_ARGS), n8_ownOMP_vormAdd_vava_32f, n8_ownvormAdd_vava_32f, n8_ownvormAdd_vava_32f_S2,
                         VAVA_ARGS);
}
VormStatus n8_vormAdd_vava_64f(VAVA_PARAMS(double))
{
    return checked<1400>(vava(VAVA_ARGS), n8_ownOMP_vormAdd_vava_64f, n8_ownvormAdd_vava_64f, n8_ownvormAdd_vava_64f_S2,
                         VAVA_ARGS);
}
VormStatus n8_vormAdd_vava_32f_L(VAVA_PARAMS_L(float))
{
    return checked<2500>(vavaL(VAVA_ARGS_L), n8_ownOMP_vormAdd_vava_32f_L, n8_ownvormAdd_vava_32f_L,
                         n8_ownvormAdd_vava_32f_LS2, VAVA_ARGS_L);
}
VormStatus n8_vormAdd_vava_64f_L(VAVA_PARAMS_L(double))
{
    return checked<2500>(vavaL(VAVA_ARGS_L), n8_ownOMP_vormAdd_vava_64f_L, n8_ownvormAdd_vava_64f_L,
                         n8_ownvormAdd_vava_64f_LS2, VAVA_ARGS_L);
}
VormStatus n8_vormAdd_vava_32f_P(VAVA_PARAMS_P(float))
{
    return checked<1500>(vavaP(VAVA_ARGS_P), n8_ownOMP_vormAdd_vava_32f_P, n8_ownvormAdd_vava_32f_P, VAVA_ARGS_P);
}
VormStatus n8_vormAdd_vava_64f_P(VAVA_PARAMS_P(double))
{
    return checked<1500>(vavaP(VAVA_ARGS_P), n8_ownOMP_vormAdd_vava_64f_P, n8_ownvormAdd_vava_64f_P, VAVA_ARGS_P);
}

VormStatus n8_ownvormAdd_vava_32f_S2(VAVA_PARAMS(float)) { return anyStrideKernel<Add>(vava(VAVA_ARGS)); }
VormStatus n8_ownvormAdd_vava_64f_S2(VAVA_PARAMS(double)) { return anyStrideKernel<Add>(vava(VAVA_ARGS)); }
VormStatus n8_ownvormAdd_vava_32f_LS2(VAVA_PARAMS_L(float))
{
    return eachSingle(vavaL(VAVA_ARGS_L), n8_ownvormAdd_vv_32f_S2);
}
VormStatus n8_ownvormAdd_vava_64f_LS2(VAVA_PARAMS_L(double))
{
    return eachSingle(vavaL(VAVA_ARGS_L), n8_ownvormAdd_vv_64f_S2);
}
VormStatus n8_ownvormAdd_vava_32f_P(VAVA_PARAMS_P(float)) { return pointerKernel<Add>(vavaP(VAVA_ARGS_P)); }
VormStatus n8_ownvormAdd_vava_64f_P(VAVA_PARAMS_P(double)) { return pointerKernel<Add>(vavaP(VAVA_ARGS_P)); }
}
