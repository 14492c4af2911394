// vormMul_tama: public layers, and the kernels for elements anywhere.

#include "products/mama.hpp"

using namespace vorm;

extern "C" {

VormStatus n8_vormMul_tama_32f(MAMA_PARAMS(float))
{
    return mamaChecked<Tm, 2500>(n8_ownOMP_vormMul_tama_32f, n8_ownvormMul_tama_32f, n8_ownvormMul_tama_32f_S2,
                                 MAMA_ARGS);
}
VormStatus n8_vormMul_tama_64f(MAMA_PARAMS(double))
{
    return mamaChecked<Tm, 3600>(n8_ownOMP_vormMul_tama_64f, n8_ownvormMul_tama_64f, n8_ownvormMul_tama_64f_S2,
                                 MAMA_ARGS);
}
VormStatus n8_vormMul_tama_32f_L(MAMA_PARAMS_L(float))
{
    return mamaCheckedL<Tm>(n8_ownOMP_vormMul_tama_32f_L, n8_ownvormMul_tama_32f_L, n8_ownvormMul_tama_32f_LS2,
                            MAMA_ARGS_L);
}
VormStatus n8_vormMul_tama_64f_L(MAMA_PARAMS_L(double))
{
    return mamaCheckedL<Tm>(n8_ownOMP_vormMul_tama_64f_L, n8_ownvormMul_tama_64f_L, n8_ownvormMul_tama_64f_LS2,
                            MAMA_ARGS_L);
}
VormStatus n8_vormMul_tama_32f_P(MAMA_PARAMS_P(float))
{
    return mamaCheckedP<Tm>(n8_ownOMP_vormMul_tama_32f_P, n8_ownvormMul_tama_32f_P, MAMA_ARGS_P);
}
VormStatus n8_vormMul_tama_64f_P(MAMA_PARAMS_P(double))
{
    return mamaCheckedP<Tm>(n8_ownOMP_vormMul_tama_64f_P, n8_ownvormMul_tama_64f_P, MAMA_ARGS_P);
}

VormStatus n8_ownvormMul_tama_32f_S2(MAMA_PARAMS(float)) { return mamaAnyStride<Tm>(MAMA_ARGS); }
VormStatus n8_ownvormMul_tama_64f_S2(MAMA_PARAMS(double)) { return mamaAnyStride<Tm>(MAMA_ARGS); }
VormStatus n8_ownvormMul_tama_32f_LS2(MAMA_PARAMS_L(float))
{
    return mamaEachSingle(n8_ownvormMul_tm_32f_S2, MAMA_ARGS_L);
}
VormStatus n8_ownvormMul_tama_64f_LS2(MAMA_PARAMS_L(double))
{
    return mamaEachSingle(n8_ownvormMul_tm_64f_S2, MAMA_ARGS_L);
}
VormStatus n8_ownvormMul_tama_32f_P(MAMA_PARAMS_P(float)) { return mamaPointers<Tm>(MAMA_ARGS_P); }
VormStatus n8_ownvormMul_tama_64f_P(MAMA_PARAMS_P(double)) { return mamaPointers<Tm>(MAMA_ARGS_P); }

}
