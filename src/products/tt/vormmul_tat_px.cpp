// vormMul_tat: public layers, and the kernels for elements anywhere.

#include "products/matrix_calls.hpp"
#include "products/shapes/mam.hpp"

using namespace vorm;
using namespace vorm::products;

extern "C" {

VormStatus n8_vormMul_tat_32f(MAM_PARAMS(float))
{
    return checked<2500, teamLimitAnyStride>(mam<Tt>(MAM_ARGS), n8_ownOMP_vormMul_tat_32f, n8_ownvormMul_tat_32f,
                                             n8_ownvormMul_tat_32f_S2, MAM_ARGS);
}
VormStatus n8_vormMul_tat_64f(MAM_PARAMS(double))
{
    return checked<3600, teamLimitAnyStride>(mam<Tt>(MAM_ARGS), n8_ownOMP_vormMul_tat_64f, n8_ownvormMul_tat_64f,
                                             n8_ownvormMul_tat_64f_S2, MAM_ARGS);
}
VormStatus n8_vormMul_tat_32f_L(MAM_PARAMS_L(float))
{
    return checked<teamLimitList, teamLimitAnyStride>(mamL<Tt>(MAM_ARGS_L), n8_ownOMP_vormMul_tat_32f_L,
                                                      n8_ownvormMul_tat_32f_L, n8_ownvormMul_tat_32f_LS2, MAM_ARGS_L);
}
VormStatus n8_vormMul_tat_64f_L(MAM_PARAMS_L(double))
{
    return checked<teamLimitList, teamLimitAnyStride>(mamL<Tt>(MAM_ARGS_L), n8_ownOMP_vormMul_tat_64f_L,
                                                      n8_ownvormMul_tat_64f_L, n8_ownvormMul_tat_64f_LS2, MAM_ARGS_L);
}
VormStatus n8_vormMul_tat_32f_P(MAM_PARAMS_P(float))
{
    return checked<teamLimitPointers>(mamP<Tt>(MAM_ARGS_P), n8_ownOMP_vormMul_tat_32f_P, n8_ownvormMul_tat_32f_P,
                                      MAM_ARGS_P);
}
VormStatus n8_vormMul_tat_64f_P(MAM_PARAMS_P(double))
{
    return checked<teamLimitPointers>(mamP<Tt>(MAM_ARGS_P), n8_ownOMP_vormMul_tat_64f_P, n8_ownvormMul_tat_64f_P,
                                      MAM_ARGS_P);
}

VormStatus n8_ownvormMul_tat_32f_S2(MAM_PARAMS(float)) { return anyStrideKernel<Tt>(mam<Tt>(MAM_ARGS)); }
VormStatus n8_ownvormMul_tat_64f_S2(MAM_PARAMS(double)) { return anyStrideKernel<Tt>(mam<Tt>(MAM_ARGS)); }
VormStatus n8_ownvormMul_tat_32f_LS2(MAM_PARAMS_L(float))
{
    return eachSingle(mamL<Tt>(MAM_ARGS_L), n8_ownvormMul_tt_32f_S2);
}
VormStatus n8_ownvormMul_tat_64f_LS2(MAM_PARAMS_L(double))
{
    return eachSingle(mamL<Tt>(MAM_ARGS_L), n8_ownvormMul_tt_64f_S2);
}
VormStatus n8_ownvormMul_tat_32f_P(MAM_PARAMS_P(float))
{
    return pointerKernel<Tt, Outermost::columns>(mamP<Tt>(MAM_ARGS_P));
}
VormStatus n8_ownvormMul_tat_64f_P(MAM_PARAMS_P(double))
{
    return pointerKernel<Tt, Outermost::columns>(mamP<Tt>(MAM_ARGS_P));
}
}
