// vormMul_tata: public layers, and the kernels for elements anywhere.

#include "products/mama.hpp"

using namespace vorm;

extern "C" {

VormStatus n8_vormMul_tata_32f(MAMA_PARAMS(float))
{
    return mamaChecked<Tt, 2500>(n8_ownOMP_vormMul_tata_32f, n8_ownvormMul_tata_32f, n8_ownvormMul_tata_32f_S2,
                                 MAMA_ARGS);
}
VormStatus n8_vormMul_tata_64f(MAMA_PARAMS(double))
{
    return mamaChecked<Tt, 3600>(n8_ownOMP_vormMul_tata_64f, n8_ownvormMul_tata_64f, n8_ownvormMul_tata_64f_S2,
                                 MAMA_ARGS);
}
VormStatus n8_vormMul_tata_32f_L(MAMA_PARAMS_L(float))
{
    return mamaCheckedL<Tt>(n8_ownOMP_vormMul_tata_32f_L, n8_ownvormMul_tata_32f_L, n8_ownvormMul_tata_32f_LS2,
                            MAMA_ARGS_L);
}
VormStatus n8_vormMul_tata_64f_L(MAMA_PARAMS_L(double))
{
    return mamaCheckedL<Tt>(n8_ownOMP_vormMul_tata_64f_L, n8_ownvormMul_tata_64f_L, n8_ownvormMul_tata_64f_LS2,
                            MAMA_ARGS_L);
}
VormStatus n8_vormMul_tata_32f_P(MAMA_PARAMS_P(float))
{
    return mamaCheckedP<Tt>(n8_ownOMP_vormMul_tata_32f_P, n8_ownvormMul_tata_32f_P, MAMA_ARGS_P);
}
VormStatus n8_vormMul_tata_64f_P(MAMA_PARAMS_P(double))
{
    return mamaCheckedP<Tt>(n8_ownOMP_vormMul_tata_64f_P, n8_ownvormMul_tata_64f_P, MAMA_ARGS_P);
}

VormStatus n8_ownvormMul_tata_32f_S2(MAMA_PARAMS(float)) { return mamaAnyStride<Tt>(MAMA_ARGS); }
VormStatus n8_ownvormMul_tata_64f_S2(MAMA_PARAMS(double)) { return mamaAnyStride<Tt>(MAMA_ARGS); }
VormStatus n8_ownvormMul_tata_32f_LS2(MAMA_PARAMS_L(float))
{
    return mamaEachSingle(n8_ownvormMul_tt_32f_S2, MAMA_ARGS_L);
}
VormStatus n8_ownvormMul_tata_64f_LS2(MAMA_PARAMS_L(double))
{
    return mamaEachSingle(n8_ownvormMul_tt_64f_S2, MAMA_ARGS_L);
}
VormStatus n8_ownvormMul_tata_32f_P(MAMA_PARAMS_P(float)) { return mamaPointers<Tt, Outermost::columns>(MAMA_ARGS_P); }
VormStatus n8_ownvormMul_tata_64f_P(MAMA_PARAMS_P(double)) { return mamaPointers<Tt, Outermost::columns>(MAMA_ARGS_P); }

}
