// vormMul_mta: public layers, and the kernels for elements anywhere.

#include "products/matrix_calls.hpp"
#include "products/shapes/mma.hpp"

using namespace vorm;
using namespace vorm::products;

extern "C" {

VormStatus n8_vormMul_mta_32f(MMA_PARAMS(float))
{
    return checked<2500, teamLimitAnyStride>(mma<Mt>(MMA_ARGS), n8_ownOMP_vormMul_mta_32f, n8_ownvormMul_mta_32f,
                                             n8_ownvormMul_mta_32f_S2, MMA_ARGS);
}
VormStatus n8_vormMul_mta_64f(MMA_PARAMS(double))
{
    return checked<3600, teamLimitAnyStride>(mma<Mt>(MMA_ARGS), n8_ownOMP_vormMul_mta_64f, n8_ownvormMul_mta_64f,
                                             n8_ownvormMul_mta_64f_S2, MMA_ARGS);
}
VormStatus n8_vormMul_mta_32f_L(MMA_PARAMS_L(float))
{
    return checked<teamLimitList, teamLimitAnyStride>(mmaL<Mt>(MMA_ARGS_L), n8_ownOMP_vormMul_mta_32f_L,
                                                      n8_ownvormMul_mta_32f_L, n8_ownvormMul_mta_32f_LS2, MMA_ARGS_L);
}
VormStatus n8_vormMul_mta_64f_L(MMA_PARAMS_L(double))
{
    return checked<teamLimitList, teamLimitAnyStride>(mmaL<Mt>(MMA_ARGS_L), n8_ownOMP_vormMul_mta_64f_L,
                                                      n8_ownvormMul_mta_64f_L, n8_ownvormMul_mta_64f_LS2, MMA_ARGS_L);
}
VormStatus n8_vormMul_mta_32f_P(MMA_PARAMS_P(float))
{
    return checked<teamLimitPointers>(mmaP<Mt>(MMA_ARGS_P), n8_ownOMP_vormMul_mta_32f_P, n8_ownvormMul_mta_32f_P,
                                      MMA_ARGS_P);
}
VormStatus n8_vormMul_mta_64f_P(MMA_PARAMS_P(double))
{
    return checked<teamLimitPointers>(mmaP<Mt>(MMA_ARGS_P), n8_ownOMP_vormMul_mta_64f_P, n8_ownvormMul_mta_64f_P,
                                      MMA_ARGS_P);
}

VormStatus n8_ownvormMul_mta_32f_S2(MMA_PARAMS(float)) { return anyStrideKernel<Mt>(mma<Mt>(MMA_ARGS)); }
VormStatus n8_ownvormMul_mta_64f_S2(MMA_PARAMS(double)) { return anyStrideKernel<Mt>(mma<Mt>(MMA_ARGS)); }
VormStatus n8_ownvormMul_mta_32f_LS2(MMA_PARAMS_L(float))
{
    return eachSingle(mmaL<Mt>(MMA_ARGS_L), n8_ownvormMul_mt_32f_S2);
}
VormStatus n8_ownvormMul_mta_64f_LS2(MMA_PARAMS_L(double))
{
    return eachSingle(mmaL<Mt>(MMA_ARGS_L), n8_ownvormMul_mt_64f_S2);
}
VormStatus n8_ownvormMul_mta_32f_P(MMA_PARAMS_P(float)) { return pointerKernel<Mt>(mmaP<Mt>(MMA_ARGS_P)); }
VormStatus n8_ownvormMul_mta_64f_P(MMA_PARAMS_P(double)) { return pointerKernel<Mt>(mmaP<Mt>(MMA_ARGS_P)); }
}
