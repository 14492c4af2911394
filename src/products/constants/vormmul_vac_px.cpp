// vormMul_vac: public layers, and the kernels for elements anywhere.

#include "elementwise/calls.hpp"
#include "products/constants/shapes.hpp"

using namespace vorm;
using namespace vorm::elementwise;

extern "C" {

VormStatus n8_vormMul_vac_32f(VAC_PARAMS(float))
{
    return checked<2500, 1440>(vacProduct(vac(VAC_ARGS), len), n8_ownOMP_vormMul_vac_32f, n8_ownvormMul_vac_32f,
                               n8_ownvormMul_vac_32f_S2, VAC_ARGS);
}
VormStatus n8_vormMul_vac_64f(VAC_PARAMS(double))
{
    return checked<3600, 1440>(vacProduct(vac(VAC_ARGS), len), n8_ownOMP_vormMul_vac_64f, n8_ownvormMul_vac_64f,
                               n8_ownvormMul_vac_64f_S2, VAC_ARGS);
}
VormStatus n8_vormMul_vac_32f_L(VAC_PARAMS_L(float))
{
    return checked<3600, 1440>(vacProduct(vacL(VAC_ARGS_L), len), n8_ownOMP_vormMul_vac_32f_L, n8_ownvormMul_vac_32f_L,
                               n8_ownvormMul_vac_32f_LS2, VAC_ARGS_L);
}
VormStatus n8_vormMul_vac_64f_L(VAC_PARAMS_L(double))
{
    return checked<3600, 1440>(vacProduct(vacL(VAC_ARGS_L), len), n8_ownOMP_vormMul_vac_64f_L, n8_ownvormMul_vac_64f_L,
                               n8_ownvormMul_vac_64f_LS2, VAC_ARGS_L);
}
VormStatus n8_vormMul_vac_32f_P(VAC_PARAMS_P(float))
{
    return checked<1440>(vacProduct(vacP(VAC_ARGS_P), len), n8_ownOMP_vormMul_vac_32f_P, n8_ownvormMul_vac_32f_P,
                         VAC_ARGS_P);
}
VormStatus n8_vormMul_vac_64f_P(VAC_PARAMS_P(double))
{
    return checked<1440>(vacProduct(vacP(VAC_ARGS_P), len), n8_ownOMP_vormMul_vac_64f_P, n8_ownvormMul_vac_64f_P,
                         VAC_ARGS_P);
}

VormStatus n8_ownvormMul_vac_32f_S2(VAC_PARAMS(float)) { return anyStrideKernel<Mul>(vac(VAC_ARGS)); }
VormStatus n8_ownvormMul_vac_64f_S2(VAC_PARAMS(double)) { return anyStrideKernel<Mul>(vac(VAC_ARGS)); }
VormStatus n8_ownvormMul_vac_32f_LS2(VAC_PARAMS_L(float)) { return anyStrideKernel<Mul>(vacL(VAC_ARGS_L)); }
VormStatus n8_ownvormMul_vac_64f_LS2(VAC_PARAMS_L(double)) { return anyStrideKernel<Mul>(vacL(VAC_ARGS_L)); }
VormStatus n8_ownvormMul_vac_32f_P(VAC_PARAMS_P(float)) { return pointerKernel<Mul>(vacP(VAC_ARGS_P)); }
VormStatus n8_ownvormMul_vac_64f_P(VAC_PARAMS_P(double)) { return pointerKernel<Mul>(vacP(VAC_ARGS_P)); }
}
