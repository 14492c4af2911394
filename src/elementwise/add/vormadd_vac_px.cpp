// vormAdd_vac: public layers, and the kernels for elements anywhere.

#include "elementwise/calls.hpp"
#include "elementwise/shapes/vac.hpp"

using namespace vorm;
using namespace vorm::elementwise;

extern "C" {

VormStatus n8_vormAdd_vac_32f(VAC_PARAMS(float))
{
    return checked<4800>(vac(VAC_ARGS), n8_ownOMP_vormAdd_vac_32f, n8_ownvormAdd_vac_32f, n8_ownvormAdd_vac_32f_S2,
                         VAC_ARGS);
}
VormStatus n8_vormAdd_vac_64f(VAC_PARAMS(double))
{
    return checked<1400>(vac(VAC_ARGS), n8_ownOMP_vormAdd_vac_64f, n8_ownvormAdd_vac_64f, n8_ownvormAdd_vac_64f_S2,
                         VAC_ARGS);
}
VormStatus n8_vormAdd_vac_32f_L(VAC_PARAMS_L(float))
{
    return checked<2500>(vacL(VAC_ARGS_L), n8_ownOMP_vormAdd_vac_32f_L, n8_ownvormAdd_vac_32f_L,
                         n8_ownvormAdd_vac_32f_LS2, VAC_ARGS_L);
}
VormStatus n8_vormAdd_vac_64f_L(VAC_PARAMS_L(double))
{
    return checked<2500>(vacL(VAC_ARGS_L), n8_ownOMP_vormAdd_vac_64f_L, n8_ownvormAdd_vac_64f_L,
                         n8_ownvormAdd_vac_64f_LS2, VAC_ARGS_L);
}
VormStatus n8_vormAdd_vac_32f_P(VAC_PARAMS_P(float))
{
    return checked<1500>(vacP(VAC_ARGS_P), n8_ownOMP_vormAdd_vac_32f_P, n8_ownvormAdd_vac_32f_P, VAC_ARGS_P);
}
VormStatus n8_vormAdd_vac_64f_P(VAC_PARAMS_P(double))
{
    return checked<1500>(vacP(VAC_ARGS_P), n8_ownOMP_vormAdd_vac_64f_P, n8_ownvormAdd_vac_64f_P, VAC_ARGS_P);
}

VormStatus n8_ownvormAdd_vac_32f_S2(VAC_PARAMS(float)) { return anyStrideKernel<Add>(vac(VAC_ARGS)); }
VormStatus n8_ownvormAdd_vac_64f_S2(VAC_PARAMS(double)) { return anyStrideKernel<Add>(vac(VAC_ARGS)); }
VormStatus n8_ownvormAdd_vac_32f_LS2(VAC_PARAMS_L(float)) { return anyStrideKernel<Add>(vacL(VAC_ARGS_L)); }
VormStatus n8_ownvormAdd_vac_64f_LS2(VAC_PARAMS_L(double)) { return anyStrideKernel<Add>(vacL(VAC_ARGS_L)); }
VormStatus n8_ownvormAdd_vac_32f_P(VAC_PARAMS_P(float)) { return pointerKernel<Add>(vacP(VAC_ARGS_P)); }
VormStatus n8_ownvormAdd_vac_64f_P(VAC_PARAMS_P(double)) { return pointerKernel<Add>(vacP(VAC_ARGS_P)); }
}
