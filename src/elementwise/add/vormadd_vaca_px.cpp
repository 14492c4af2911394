// vormAdd_vaca: public layers, and the kernels for elements anywhere.

#include "elementwise/calls.hpp"
#include "elementwise/shapes/vaca.hpp"

using namespace vorm;
using namespace vorm::elementwise;

extern "C" {

VormStatus n8_vormAdd_vaca_32f(VACA_PARAMS(float))
{
    return checked<4800>(vaca(VACA_ARGS), n8_ownOMP_vormAdd_vaca_32f, n8_ownvormAdd_vaca_32f, n8_ownvormAdd_vaca_32f_S2,
                         VACA_ARGS);
}
VormStatus n8_vormAdd_vaca_64f(VACA_PARAMS(double))
{
    return checked<1400>(vaca(VACA_ARGS), n8_ownOMP_vormAdd_vaca_64f, n8_ownvormAdd_vaca_64f, n8_ownvormAdd_vaca_64f_S2,
                         VACA_ARGS);
}
VormStatus n8_vormAdd_vaca_32f_L(VACA_PARAMS_L(float))
{
    return checked<2500>(vacaL(VACA_ARGS_L), n8_ownOMP_vormAdd_vaca_32f_L, n8_ownvormAdd_vaca_32f_L,
                         n8_ownvormAdd_vaca_32f_LS2, VACA_ARGS_L);
}
VormStatus n8_vormAdd_vaca_64f_L(VACA_PARAMS_L(double))
{
    return checked<2500>(vacaL(VACA_ARGS_L), n8_ownOMP_vormAdd_vaca_64f_L, n8_ownvormAdd_vaca_64f_L,
                         n8_ownvormAdd_vaca_64f_LS2, VACA_ARGS_L);
}
VormStatus n8_vormAdd_vaca_32f_P(VACA_PARAMS_P(float))
{
    return checked<1500>(
        vacaP(ppSrc, srcShift, int{sizeof(float)}, pVal, valStride0, ppDst, dstShift, dstStride0, len, count),
        n8_ownOMP_vormAdd_vaca_32f_P, n8_ownvormAdd_vaca_32f_P, VACA_ARGS_P);
}
VormStatus n8_vormAdd_vaca_64f_P(VACA_PARAMS_P(double))
{
    return checked<1500>(vacaP(VACA_ARGS_P), n8_ownOMP_vormAdd_vaca_64f_P, n8_ownvormAdd_vaca_64f_P, VACA_ARGS_P);
}

VormStatus n8_ownvormAdd_vaca_32f_S2(VACA_PARAMS(float)) { return anyStrideKernel<Add>(vaca(VACA_ARGS)); }
VormStatus n8_ownvormAdd_vaca_64f_S2(VACA_PARAMS(double)) { return anyStrideKernel<Add>(vaca(VACA_ARGS)); }
VormStatus n8_ownvormAdd_vaca_32f_LS2(VACA_PARAMS_L(float)) { return anyStrideKernel<Add>(vacaL(VACA_ARGS_L)); }
VormStatus n8_ownvormAdd_vaca_64f_LS2(VACA_PARAMS_L(double)) { return anyStrideKernel<Add>(vacaL(VACA_ARGS_L)); }
VormStatus n8_ownvormAdd_vaca_32f_P(VACA_PARAMS_P(float)) { return pointerKernel<Add>(vacaP(VACA_ARGS_P)); }
VormStatus n8_ownvormAdd_vaca_64f_P(VACA_PARAMS_P(double)) { return pointerKernel<Add>(vacaP(VACA_ARGS_P)); }
}
