// vormMul_mam: public layers, and the kernels for elements anywhere.

#include "products/matrix_calls.hpp"
#include "products/shapes/mam.hpp"

using namespace vorm;
using namespace vorm::products;

extern "C" {

VormStatus n8_vormMul_mam_32f(MAM_PARAMS(float))
{
    return checked<2500, teamLimitAnyStride>(mam<Mm>(MAM_ARGS), n8_ownOMP_vormMul_mam_32f, n8_ownvormMul_mam_32f,
                                             n8_ownvormMul_mam_32f_S2, MAM_ARGS);
}
VormStatus n8_vormMul_mam_64f(MAM_PARAMS(double))
{
    return checked<3600, teamLimitAnyStride>(mam<Mm>(MAM_ARGS), n8_ownOMP_vormMul_mam_64f, n8_ownvormMul_mam_64f,
                                             n8_ownvormMul_mam_64f_S2, MAM_ARGS);
}
VormStatus n8_vormMul_mam_32f_L(MAM_PARAMS_L(float))
{
    return checked<teamLimitList, teamLimitAnyStride>(mamL<Mm>(MAM_ARGS_L), n8_ownOMP_vormMul_mam_32f_L,
                                                      n8_ownvormMul_mam_32f_L, n8_ownvormMul_mam_32f_LS2, MAM_ARGS_L);
}
VormStatus n8_vormMul_mam_64f_L(MAM_PARAMS_L(double))
{
    return checked<teamLimitList, teamLimitAnyStride>(mamL<Mm>(MAM_ARGS_L), n8_ownOMP_vormMul_mam_64f_L,
                                                      n8_ownvormMul_mam_64f_L, n8_ownvormMul_mam_64f_LS2, MAM_ARGS_L);
}
VormStatus n8_vormMul_mam_32f_P(MAM_PARAMS_P(float))
{
    return checked<teamLimitPointers>(mamP<Mm>(MAM_ARGS_P), n8_ownOMP_vormMul_mam_32f_P, n8_ownvormMul_mam_32f_P,
                                      MAM_ARGS_P);
}
VormStatus n8_vormMul_mam_64f_P(MAM_PARAMS_P(double))
{
    return checked<teamLimitPointers>(mamP<Mm>(MAM_ARGS_P), n8_ownOMP_vormMul_mam_64f_P, n8_ownvormMul_mam_64f_P,
                                      MAM_ARGS_P);
}

VormStatus n8_ownvormMul_mam_32f_S2(MAM_PARAMS(float)) { return anyStrideKernel<Mm>(mam<Mm>(MAM_ARGS)); }
VormStatus n8_ownvormMul_mam_64f_S2(MAM_PARAMS(double)) { return anyStrideKernel<Mm>(mam<Mm>(MAM_ARGS)); }
VormStatus n8_ownvormMul_mam_32f_LS2(MAM_PARAMS_L(float))
{
    return eachSingle(mamL<Mm>(MAM_ARGS_L), n8_ownvormMul_mm_32f_S2);
}
VormStatus n8_ownvormMul_mam_64f_LS2(MAM_PARAMS_L(double))
{
    return eachSingle(mamL<Mm>(MAM_ARGS_L), n8_ownvormMul_mm_64f_S2);
}
VormStatus n8_ownvormMul_mam_32f_P(MAM_PARAMS_P(float)) { return pointerKernel<Mm>(mamP<Mm>(MAM_ARGS_P)); }
VormStatus n8_ownvormMul_mam_64f_P(MAM_PARAMS_P(double)) { return pointerKernel<Mm>(mamP<Mm>(MAM_ARGS_P)); }
}
