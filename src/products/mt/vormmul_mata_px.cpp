// vormMul_mata: public layers, and the kernels for elements anywhere.

#include "products/matrix_calls.hpp"
#include "products/shapes/mama.hpp"

using namespace vorm;
using namespace vorm::products;

extern "C" {

VormStatus n8_vormMul_mata_32f(MAMA_PARAMS(float))
{
    return checked<2500, teamLimitAnyStride>(mama<Mt>(MAMA_ARGS), n8_ownOMP_vormMul_mata_32f, n8_ownvormMul_mata_32f,
                                             n8_ownvormMul_mata_32f_S2, MAMA_ARGS);
}
VormStatus n8_vormMul_mata_64f(MAMA_PARAMS(double))
{
    return checked<3600, teamLimitAnyStride>(mama<Mt>(MAMA_ARGS), n8_ownOMP_vormMul_mata_64f, n8_ownvormMul_mata_64f,
                                             n8_ownvormMul_mata_64f_S2, MAMA_ARGS);
}
VormStatus n8_vormMul_mata_32f_L(MAMA_PARAMS_L(float))
{
    return checked<teamLimitList, teamLimitAnyStride>(mamaL<Mt>(MAMA_ARGS_L), n8_ownOMP_vormMul_mata_32f_L,
                                                      n8_ownvormMul_mata_32f_L, n8_ownvormMul_mata_32f_LS2,
                                                      MAMA_ARGS_L);
}
VormStatus n8_vormMul_mata_64f_L(MAMA_PARAMS_L(double))
{
    return checked<teamLimitList, teamLimitAnyStride>(mamaL<Mt>(MAMA_ARGS_L), n8_ownOMP_vormMul_mata_64f_L,
                                                      n8_ownvormMul_mata_64f_L, n8_ownvormMul_mata_64f_LS2,
                                                      MAMA_ARGS_L);
}
VormStatus n8_vormMul_mata_32f_P(MAMA_PARAMS_P(float))
{
    return checked<teamLimitPointers>(mamaP<Mt>(MAMA_ARGS_P), n8_ownOMP_vormMul_mata_32f_P, n8_ownvormMul_mata_32f_P,
                                      MAMA_ARGS_P);
}
VormStatus n8_vormMul_mata_64f_P(MAMA_PARAMS_P(double))
{
    return checked<teamLimitPointers>(mamaP<Mt>(MAMA_ARGS_P), n8_ownOMP_vormMul_mata_64f_P, n8_ownvormMul_mata_64f_P,
                                      MAMA_ARGS_P);
}

VormStatus n8_ownvormMul_mata_32f_S2(MAMA_PARAMS(float)) { return anyStrideKernel<Mt>(mama<Mt>(MAMA_ARGS)); }
VormStatus n8_ownvormMul_mata_64f_S2(MAMA_PARAMS(double)) { return anyStrideKernel<Mt>(mama<Mt>(MAMA_ARGS)); }
VormStatus n8_ownvormMul_mata_32f_LS2(MAMA_PARAMS_L(float))
{
    return eachSingle(mamaL<Mt>(MAMA_ARGS_L), n8_ownvormMul_mt_32f_S2);
}
VormStatus n8_ownvormMul_mata_64f_LS2(MAMA_PARAMS_L(double))
{
    return eachSingle(mamaL<Mt>(MAMA_ARGS_L), n8_ownvormMul_mt_64f_S2);
}
VormStatus n8_ownvormMul_mata_32f_P(MAMA_PARAMS_P(float)) { return pointerKernel<Mt>(mamaP<Mt>(MAMA_ARGS_P)); }
VormStatus n8_ownvormMul_mata_64f_P(MAMA_PARAMS_P(double)) { return pointerKernel<Mt>(mamaP<Mt>(MAMA_ARGS_P)); }
}
