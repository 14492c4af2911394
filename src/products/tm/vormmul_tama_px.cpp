// vormMul_tama: public layers, and the kernels for elements anywhere.

#include "products/matrix_calls.hpp"
#include "products/shapes/mama.hpp"

using namespace vorm;
using namespace vorm::products;

extern "C" {

VormStatus n8_vormMul_tama_32f(MAMA_PARAMS(float))
{
    return checked<2500, teamLimitAnyStride>(mama<Tm>(MAMA_ARGS), n8_ownOMP_vormMul_tama_32f, n8_ownvormMul_tama_32f,
                                             n8_ownvormMul_tama_32f_S2, MAMA_ARGS);
}
VormStatus n8_vormMul_tama_64f(MAMA_PARAMS(double))
{
    return checked<3600, teamLimitAnyStride>(mama<Tm>(MAMA_ARGS), n8_ownOMP_vormMul_tama_64f, n8_ownvormMul_tama_64f,
                                             n8_ownvormMul_tama_64f_S2, MAMA_ARGS);
}
VormStatus n8_vormMul_tama_32f_L(MAMA_PARAMS_L(float))
{
    return checked<teamLimitList, teamLimitAnyStride>(mamaL<Tm>(MAMA_ARGS_L), n8_ownOMP_vormMul_tama_32f_L,
                                                      n8_ownvormMul_tama_32f_L, n8_ownvormMul_tama_32f_LS2,
                                                      MAMA_ARGS_L);
}
VormStatus n8_vormMul_tama_64f_L(MAMA_PARAMS_L(double))
{
    return checked<teamLimitList, teamLimitAnyStride>(mamaL<Tm>(MAMA_ARGS_L), n8_ownOMP_vormMul_tama_64f_L,
                                                      n8_ownvormMul_tama_64f_L, n8_ownvormMul_tama_64f_LS2,
                                                      MAMA_ARGS_L);
}
VormStatus n8_vormMul_tama_32f_P(MAMA_PARAMS_P(float))
{
    return checked<teamLimitPointers>(mamaP<Tm>(MAMA_ARGS_P), n8_ownOMP_vormMul_tama_32f_P, n8_ownvormMul_tama_32f_P,
                                      MAMA_ARGS_P);
}
VormStatus n8_vormMul_tama_64f_P(MAMA_PARAMS_P(double))
{
    return checked<teamLimitPointers>(mamaP<Tm>(MAMA_ARGS_P), n8_ownOMP_vormMul_tama_64f_P, n8_ownvormMul_tama_64f_P,
                                      MAMA_ARGS_P);
}

VormStatus n8_ownvormMul_tama_32f_S2(MAMA_PARAMS(float)) { return anyStrideKernel<Tm>(mama<Tm>(MAMA_ARGS)); }
VormStatus n8_ownvormMul_tama_64f_S2(MAMA_PARAMS(double)) { return anyStrideKernel<Tm>(mama<Tm>(MAMA_ARGS)); }
VormStatus n8_ownvormMul_tama_32f_LS2(MAMA_PARAMS_L(float))
{
    return eachSingle(mamaL<Tm>(MAMA_ARGS_L), n8_ownvormMul_tm_32f_S2);
}
VormStatus n8_ownvormMul_tama_64f_LS2(MAMA_PARAMS_L(double))
{
    return eachSingle(mamaL<Tm>(MAMA_ARGS_L), n8_ownvormMul_tm_64f_S2);
}
VormStatus n8_ownvormMul_tama_32f_P(MAMA_PARAMS_P(float)) { return pointerKernel<Tm>(mamaP<Tm>(MAMA_ARGS_P)); }
VormStatus n8_ownvormMul_tama_64f_P(MAMA_PARAMS_P(double)) { return pointerKernel<Tm>(mamaP<Tm>(MAMA_ARGS_P)); }
}
