// vormMul_vaca: public layers, and the kernels for elements anywhere.

#include "elementwise/calls.hpp"
#include "products/constants/shapes.hpp"

using namespace vorm;
using namespace vorm::elementwise;

extern "C" {

VormStatus n8_vormMul_vaca_32f(VACA_PARAMS(float))
{
    return checked<2100>(vaca(VACA_ARGS), n8_ownOMP_vormMul_vaca_32f, n8_ownvormMul_vaca_32f, n8_ownvormMul_vaca_32f_S2,
                         VACA_ARGS);
}
VormStatus n8_vormMul_vaca_64f(VACA_PARAMS(double))
{
    return checked<2100>(vaca(VACA_ARGS), n8_ownOMP_vormMul_vaca_64f, n8_ownvormMul_vaca_64f, n8_ownvormMul_vaca_64f_S2,
                         VACA_ARGS);
}
VormStatus n8_vormMul_vaca_32f_L(VACA_PARAMS_L(float))
{
    return checked<1200>(vacaL(VACA_ARGS_L), n8_ownOMP_vormMul_vaca_32f_L, n8_ownvormMul_vaca_32f_L,
                         n8_ownvormMul_vaca_32f_LS2, VACA_ARGS_L);
}
VormStatus n8_vormMul_vaca_64f_L(VACA_PARAMS_L(double))
{
    return checked<1200>(vacaL(VACA_ARGS_L), n8_ownOMP_vormMul_vaca_64f_L, n8_ownvormMul_vaca_64f_L,
                         n8_ownvormMul_vaca_64f_LS2, VACA_ARGS_L);
}
VormStatus n8_vormMul_vaca_32f_P(VACA_PARAMS_P(float))
{
    return checked<650>(vacaP(VACA_ARGS_P), n8_ownOMP_vormMul_vaca_32f_P, n8_ownvormMul_vaca_32f_P, VACA_ARGS_P);
}
VormStatus n8_vormMul_vaca_64f_P(VACA_PARAMS_P(double))
{
    return checked<650>(vacaP(VACA_ARGS_P), n8_ownOMP_vormMul_vaca_64f_P, n8_ownvormMul_vaca_64f_P, VACA_ARGS_P);
}

VormStatus n8_ownvormMul_vaca_32f_S2(VACA_PARAMS(float)) { return anyStrideKernel<Mul>(vaca(VACA_ARGS)); }
VormStatus n8_ownvormMul_vaca_64f_S2(VACA_PARAMS(double)) { return anyStrideKernel<Mul>(vaca(VACA_ARGS)); }
VormStatus n8_ownvormMul_vaca_32f_LS2(VACA_PARAMS_L(float)) { return anyStrideKernel<Mul>(vacaL(VACA_ARGS_L)); }
VormStatus n8_ownvormMul_vaca_64f_LS2(VACA_PARAMS_L(double)) { return anyStrideKernel<Mul>(vacaL(VACA_ARGS_L)); }
VormStatus n8_ownvormMul_vaca_32f_P(VACA_PARAMS_P(float)) { return pointerKernel<Mul>(vacaP(VACA_ARGS_P)); }
VormStatus n8_ownvormMul_vaca_64f_P(VACA_PARAMS_P(double)) { return pointerKernel<Mul>(vacaP(VACA_ARGS_P)); }
}
