// vormL2Norm_va: public layers, and the kernels for elements anywhere.

#include "measures/calls.hpp"
#include "measures/norms/l2norm.hpp"

using namespace vorm;
using namespace vorm::measures;

extern "C" {

VormStatus n8_vormL2Norm_va_32f(L2_VA_PARAMS(float))
{
    return checked<14400>(l2NormVa(L2_VA_ARGS), n8_ownOMP_vormL2Norm_va_32f, n8_ownvormL2Norm_va_32f,
                          n8_ownvormL2Norm_va_32f_S2, L2_VA_ARGS);
}
VormStatus n8_vormL2Norm_va_64f(L2_VA_PARAMS(double))
{
    return checked<14400>(l2NormVa(L2_VA_ARGS), n8_ownOMP_vormL2Norm_va_64f, n8_ownvormL2Norm_va_64f,
                          n8_ownvormL2Norm_va_64f_S2, L2_VA_ARGS);
}
VormStatus n8_vormL2Norm_va_32f_L(L2_VA_PARAMS_L(float))
{
    return checked<14400>(l2NormVaL(L2_VA_ARGS_L), n8_ownOMP_vormL2Norm_va_32f_L, n8_ownvormL2Norm_va_32f_L,
                          n8_ownvormL2Norm_va_32f_LS2, L2_VA_ARGS_L);
}
VormStatus n8_vormL2Norm_va_64f_L(L2_VA_PARAMS_L(double))
{
    return checked<14400>(l2NormVaL(L2_VA_ARGS_L), n8_ownOMP_vormL2Norm_va_64f_L, n8_ownvormL2Norm_va_64f_L,
                          n8_ownvormL2Norm_va_64f_LS2, L2_VA_ARGS_L);
}
VormStatus n8_vormL2Norm_va_32f_P(L2_VA_PARAMS_P(float))
{
    return checked<21600>(l2NormVaP(L2_VA_ARGS_P), n8_ownOMP_vormL2Norm_va_32f_P, n8_ownvormL2Norm_va_32f_P,
                          L2_VA_ARGS_P);
}
VormStatus n8_vormL2Norm_va_64f_P(L2_VA_PARAMS_P(double))
{
    return checked<21600>(l2NormVaP(L2_VA_ARGS_P), n8_ownOMP_vormL2Norm_va_64f_P, n8_ownvormL2Norm_va_64f_P,
                          L2_VA_ARGS_P);
}

VormStatus n8_ownvormL2Norm_va_32f_S2(L2_VA_PARAMS(float)) { return anyStrideKernel<Norm>(l2NormVa(L2_VA_ARGS)); }
VormStatus n8_ownvormL2Norm_va_64f_S2(L2_VA_PARAMS(double)) { return anyStrideKernel<Norm>(l2NormVa(L2_VA_ARGS)); }
VormStatus n8_ownvormL2Norm_va_32f_LS2(L2_VA_PARAMS_L(float)) { return anyStrideKernel<Norm>(l2NormVaL(L2_VA_ARGS_L)); }
VormStatus n8_ownvormL2Norm_va_64f_LS2(L2_VA_PARAMS_L(double))
{
    return anyStrideKernel<Norm>(l2NormVaL(L2_VA_ARGS_L));
}
VormStatus n8_ownvormL2Norm_va_32f_P(L2_VA_PARAMS_P(float)) { return pointerKernel<Norm>(l2NormVaP(L2_VA_ARGS_P)); }
VormStatus n8_ownvormL2Norm_va_64f_P(L2_VA_PARAMS_P(double)) { return pointerKernel<Norm>(l2NormVaP(L2_VA_ARGS_P)); }
}
