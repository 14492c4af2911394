// vormMul_mata: public layers, and the kernels for elements anywhere.

#include "products/mama.hpp"

using namespace vorm;

extern "C" {

VormStatus n8_vormMul_mata_32f(MAMA_PARAMS(float))
{
    return mamaChecked<Mt, 2500>(n8_ownOMP_vormMul_mata_32f, n8_ownvormMul_mata_32f, n8_ownvormMul_mata_32f_S2,
                                 MAMA_ARGS);
}
VormStatus n8_vormMul_mata_64f(MAMA_PARAMS(double))
{
    return mamaChecked<Mt, 3600>(n8_ownOMP_vormMul_mata_64f, n8_ownvormMul_mata_64f, n8_ownvormMul_mata_64f_S2,
                                 MAMA_ARGS);
}
VormStatus n8_vormMul_mata_32f_L(MAMA_PARAMS_L(float))
{
    return mamaCheckedL<Mt>(n8_ownOMP_vormMul_mata_32f_L, n8_ownvormMul_mata_32f_L, n8_ownvormMul_mata_32f_LS2,
                            MAMA_ARGS_L);
}
VormStatus n8_vormMul_mata_64f_L(MAMA_PARAMS_L(double))
{
    return mamaCheckedL<Mt>(n8_ownOMP_vormMul_mata_64f_L, n8_ownvormMul_mata_64f_L, n8_ownvormMul_mata_64f_LS2,
                            MAMA_ARGS_L);
}
VormStatus n8_vormMul_mata_32f_P(MAMA_PARAMS_P(float))
{
    return mamaCheckedP<Mt>(n8_ownOMP_vormMul_mata_32f_P, n8_ownvormMul_mata_32f_P, MAMA_ARGS_P);
}
VormStatus n8_vormMul_mata_64f_P(MAMA_PARAMS_P(double))
{
    return mamaCheckedP<Mt>(n8_ownOMP_vormMul_mata_64f_P, n8_ownvormMul_mata_64f_P, MAMA_ARGS_P);
}

VormStatus n8_ownvormMul_mata_32f_S2(MAMA_PARAMS(float)) { return mamaAnyStride<Mt>(MAMA_ARGS); }
VormStatus n8_ownvormMul_mata_64f_S2(MAMA_PARAMS(double)) { return mamaAnyStride<Mt>(MAMA_ARGS); }
VormStatus n8_ownvormMul_mata_32f_LS2(MAMA_PARAMS_L(float))
{
    return mamaEachSingle(n8_ownvormMul_mt_32f_S2, MAMA_ARGS_L);
}
VormStatus n8_ownvormMul_mata_64f_LS2(MAMA_PARAMS_L(double))
{
    return mamaEachSingle(n8_ownvormMul_mt_64f_S2, MAMA_ARGS_L);
}
VormStatus n8_ownvormMul_mata_32f_P(MAMA_PARAMS_P(float)) { return mamaPointers<Mt>(MAMA_ARGS_P); }
VormStatus n8_ownvormMul_mata_64f_P(MAMA_PARAMS_P(double)) { return mamaPointers<Mt>(MAMA_ARGS_P); }

}
