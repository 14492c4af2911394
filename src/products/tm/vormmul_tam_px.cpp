// vormMul_tam: public layers, and the kernels for elements anywhere.

#include "products/matrix_calls.hpp"
#include "products/shapes/mam.hpp"

using namespace vorm;
using namespace vorm::products;

extern "C" {

VormStatus n8_vormMul_tam_32f(MAM_PARAMS(float))
{
    return checked<2500, teamLimitAnyStride>(mam<Tm>(MAM_ARGS), n8_ownOMP_vormMul_tam_32f, n8_ownvormMul_tam_32f,
                                             n8_ownvormMul_tam_32f_S2, MAM_ARGS);
}
VormStatus n8_vormMul_tam_64f(MAM_PARAMS(double))
{
    return checked<3600, teamLimitAnyStride>(mam<Tm>(MAM_ARGS), n8_ownOMP_vormMul_tam_64f, n8_ownvormMul_tam_64f,
                                             n8_ownvormMul_tam_64f_S2, MAM_ARGS);
}
VormStatus n8_vormMul_tam_32f_L(MAM_PARAMS_L(float))
{
    return checked<teamLimitList, teamLimitAnyStride>(mamL<Tm>(MAM_ARGS_L), n8_ownOMP_vormMul_tam_32f_L,
                                                      n8_ownvormMul_tam_32f_L, n8_ownvormMul_tam_32f_LS2, MAM_ARGS_L);
}
VormStatus n8_vormMul_tam_64f_L(MAM_PARAMS_L(double))
{
    return checked<teamLimitList, teamLimitAnyStride>(mamL<Tm>(MAM_ARGS_L), n8_ownOMP_vormMul_tam_64f_L,
                                                      n8_ownvormMul_tam_64f_L, n8_ownvormMul_tam_64f_LS2, MAM_ARGS_L);
}
VormStatus n8_vormMul_tam_32f_P(MAM_PARAMS_P(float))
{
    return checked<teamLimitPointers>(mamP<Tm>(MAM_ARGS_P), n8_ownOMP_vormMul_tam_32f_P, n8_ownvormMul_tam_32f_P,
                                      MAM_ARGS_P);
}
VormStatus n8_vormMul_tam_64f_P(MAM_PARAMS_P(double))
{
    return checked<teamLimitPointers>(mamP<Tm>(MAM_ARGS_P), n8_ownOMP_vormMul_tam_64f_P, n8_ownvormMul_tam_64f_P,
                                      MAM_ARGS_P);
}

VormStatus n8_ownvormMul_tam_32f_S2(MAM_PARAMS(float)) { return anyStrideKernel<Tm>(mam<Tm>(MAM_ARGS)); }
VormStatus n8_ownvormMul_tam_64f_S2(MAM_PARAMS(double)) { return anyStrideKernel<Tm>(mam<Tm>(MAM_ARGS)); }
VormStatus n8_ownvormMul_tam_32f_LS2(MAM_PARAMS_L(float))
{
    return eachSingle(mamL<Tm>(MAM_ARGS_L), n8_ownvormMul_tm_32f_S2);
}
VormStatus n8_ownvormMul_tam_64f_LS2(MAM_PARAMS_L(double))
{
    return eachSingle(mamL<Tm>(MAM_ARGS_L), n8_ownvormMul_tm_64f_S2);
}
VormStatus n8_ownvormMul_tam_32f_P(MAM_PARAMS_P(float)) { return pointerKernel<Tm>(mamP<Tm>(MAM_ARGS_P)); }
VormStatus n8_ownvormMul_tam_64f_P(MAM_PARAMS_P(double)) { return pointerKernel<Tm>(mamP<Tm>(MAM_ARGS_P)); }
}
