// vormMul_tam: public layers, and the kernels for elements anywhere.

#include "products/mam.hpp"

using namespace vorm;

extern "C" {

VormStatus n8_vormMul_tam_32f(MAM_PARAMS(float))
{
    return mamChecked<Tm, 2500>(n8_ownOMP_vormMul_tam_32f, n8_ownvormMul_tam_32f, n8_ownvormMul_tam_32f_S2, MAM_ARGS);
}
VormStatus n8_vormMul_tam_64f(MAM_PARAMS(double))
{
    return mamChecked<Tm, 3600>(n8_ownOMP_vormMul_tam_64f, n8_ownvormMul_tam_64f, n8_ownvormMul_tam_64f_S2, MAM_ARGS);
}
VormStatus n8_vormMul_tam_32f_L(MAM_PARAMS_L(float))
{
    return mamCheckedL<Tm>(n8_ownOMP_vormMul_tam_32f_L, n8_ownvormMul_tam_32f_L, n8_ownvormMul_tam_32f_LS2, MAM_ARGS_L);
}
VormStatus n8_vormMul_tam_64f_L(MAM_PARAMS_L(double))
{
    return mamCheckedL<Tm>(n8_ownOMP_vormMul_tam_64f_L, n8_ownvormMul_tam_64f_L, n8_ownvormMul_tam_64f_LS2, MAM_ARGS_L);
}
VormStatus n8_vormMul_tam_32f_P(MAM_PARAMS_P(float))
{
    return mamCheckedP<Tm>(n8_ownOMP_vormMul_tam_32f_P, n8_ownvormMul_tam_32f_P, MAM_ARGS_P);
}
VormStatus n8_vormMul_tam_64f_P(MAM_PARAMS_P(double))
{
    return mamCheckedP<Tm>(n8_ownOMP_vormMul_tam_64f_P, n8_ownvormMul_tam_64f_P, MAM_ARGS_P);
}

VormStatus n8_ownvormMul_tam_32f_S2(MAM_PARAMS(float)) { return mamAnyStride<Tm>(MAM_ARGS); }
VormStatus n8_ownvormMul_tam_64f_S2(MAM_PARAMS(double)) { return mamAnyStride<Tm>(MAM_ARGS); }
VormStatus n8_ownvormMul_tam_32f_LS2(MAM_PARAMS_L(float))
{
    return mamEachSingle(n8_ownvormMul_tm_32f_S2, MAM_ARGS_L);
}
VormStatus n8_ownvormMul_tam_64f_LS2(MAM_PARAMS_L(double))
{
    return mamEachSingle(n8_ownvormMul_tm_64f_S2, MAM_ARGS_L);
}
VormStatus n8_ownvormMul_tam_32f_P(MAM_PARAMS_P(float)) { return mamPointers<Tm>(MAM_ARGS_P); }
VormStatus n8_ownvormMul_tam_64f_P(MAM_PARAMS_P(double)) { return mamPointers<Tm>(MAM_ARGS_P); }

}
