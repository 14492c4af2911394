// vormMul_tat: public layers, and the kernels for elements anywhere.

#include "products/mam.hpp"

using namespace vorm;

extern "C" {

VormStatus n8_vormMul_tat_32f(MAM_PARAMS(float))
{
    return mamChecked<Tt, 2500>(n8_ownOMP_vormMul_tat_32f, n8_ownvormMul_tat_32f, n8_ownvormMul_tat_32f_S2, MAM_ARGS);
}
VormStatus n8_vormMul_tat_64f(MAM_PARAMS(double))
{
    return mamChecked<Tt, 3600>(n8_ownOMP_vormMul_tat_64f, n8_ownvormMul_tat_64f, n8_ownvormMul_tat_64f_S2, MAM_ARGS);
}
VormStatus n8_vormMul_tat_32f_L(MAM_PARAMS_L(float))
{
    return mamCheckedL<Tt>(n8_ownOMP_vormMul_tat_32f_L, n8_ownvormMul_tat_32f_L, n8_ownvormMul_tat_32f_LS2, MAM_ARGS_L);
}
VormStatus n8_vormMul_tat_64f_L(MAM_PARAMS_L(double))
{
    return mamCheckedL<Tt>(n8_ownOMP_vormMul_tat_64f_L, n8_ownvormMul_tat_64f_L, n8_ownvormMul_tat_64f_LS2, MAM_ARGS_L);
}
VormStatus n8_vormMul_tat_32f_P(MAM_PARAMS_P(float))
{
    return mamCheckedP<Tt>(n8_ownOMP_vormMul_tat_32f_P, n8_ownvormMul_tat_32f_P, MAM_ARGS_P);
}
VormStatus n8_vormMul_tat_64f_P(MAM_PARAMS_P(double))
{
    return mamCheckedP<Tt>(n8_ownOMP_vormMul_tat_64f_P, n8_ownvormMul_tat_64f_P, MAM_ARGS_P);
}

VormStatus n8_ownvormMul_tat_32f_S2(MAM_PARAMS(float)) { return mamAnyStride<Tt>(MAM_ARGS); }
VormStatus n8_ownvormMul_tat_64f_S2(MAM_PARAMS(double)) { return mamAnyStride<Tt>(MAM_ARGS); }
VormStatus n8_ownvormMul_tat_32f_LS2(MAM_PARAMS_L(float))
{
    return mamEachSingle(n8_ownvormMul_tt_32f_S2, MAM_ARGS_L);
}
VormStatus n8_ownvormMul_tat_64f_LS2(MAM_PARAMS_L(double))
{
    return mamEachSingle(n8_ownvormMul_tt_64f_S2, MAM_ARGS_L);
}
VormStatus n8_ownvormMul_tat_32f_P(MAM_PARAMS_P(float)) { return mamPointers<Tt, Outermost::columns>(MAM_ARGS_P); }
VormStatus n8_ownvormMul_tat_64f_P(MAM_PARAMS_P(double)) { return mamPointers<Tt, Outermost::columns>(MAM_ARGS_P); }

}
