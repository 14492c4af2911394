// vormMul_vca: public layers, and the kernels for elements anywhere.

#include "elementwise/calls.hpp"
#include "products/constants/shapes.hpp"

using namespace vorm;
using namespace vorm::elementwise;

extern "C" {

VormStatus n8_vormMul_vca_32f(VCA_PARAMS(float))
{
    return checked<2100>(vca(VCA_ARGS), n8_ownOMP_vormMul_vca_32f, n8_ownvormMul_vca_32f, n8_ownvormMul_vca_32f_S2,
                         VCA_ARGS);
}
VormStatus n8_vormMul_vca_64f(VCA_PARAMS(double))
{
    return checked<2100>(vca(VCA_ARGS), n8_ownOMP_vormMul_vca_64f, n8_ownvormMul_vca_64f, n8_ownvormMul_vca_64f_S2,
                         VCA_ARGS);
}
VormStatus n8_vormMul_vca_32f_L(VCA_PARAMS_L(float))
{
    return checked<1200>(vcaL(VCA_ARGS_L), n8_ownOMP_vormMul_vca_32f_L, n8_ownvormMul_vca_32f_L,
                         n8_ownvormMul_vca_32f_LS2, VCA_ARGS_L);
}
VormStatus n8_vormMul_vca_64f_L(VCA_PARAMS_L(double))
{
    return checked<1200>(vcaL(VCA_ARGS_L), n8_ownOMP_vormMul_vca_64f_L, n8_ownvormMul_vca_64f_L,
                         n8_ownvormMul_vca_64f_LS2, VCA_ARGS_L);
}
VormStatus n8_vormMul_vca_32f_P(VCA_PARAMS_P(float))
{
    return checked<650>(vcaP(VCA_ARGS_P), n8_ownOMP_vormMul_vca_32f_P, n8_ownvormMul_vca_32f_P, VCA_ARGS_P);
}
VormStatus n8_vormMul_vca_64f_P(VCA_PARAMS_P(double))
{
    return checked<650>(vcaP(VCA_ARGS_P), n8_ownOMP_vormMul_vca_64f_P, n8_ownvormMul_vca_64f_P, VCA_ARGS_P);
}

VormStatus n8_ownvormMul_vca_32f_S2(VCA_PARAMS(float)) { return anyStrideKernel<Mul>(vca(VCA_ARGS)); }
VormStatus n8_ownvormMul_vca_64f_S2(VCA_PARAMS(double)) { return anyStrideKernel<Mul>(vca(VCA_ARGS)); }
VormStatus n8_ownvormMul_vca_32f_LS2(VCA_PARAMS_L(float)) { return anyStrideKernel<Mul>(vcaL(VCA_ARGS_L)); }
VormStatus n8_ownvormMul_vca_64f_LS2(VCA_PARAMS_L(double)) { return anyStrideKernel<Mul>(vcaL(VCA_ARGS_L)); }
VormStatus n8_ownvormMul_vca_32f_P(VCA_PARAMS_P(float)) { return pointerKernel<Mul>(vcaP(VCA_ARGS_P)); }
VormStatus n8_ownvormMul_vca_64f_P(VCA_PARAMS_P(double)) { return pointerKernel<Mul>(vcaP(VCA_ARGS_P)); }
}
