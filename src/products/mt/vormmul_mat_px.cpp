// vormMul_mat: public layers, and the kernels for elements anywhere.

#include "products/mam.hpp"

using namespace vorm;

extern "C" {

VormStatus n8_vormMul_mat_32f(MAM_PARAMS(float))
{
    return mamChecked<Mt, 2500>(n8_ownOMP_vormMul_mat_32f, n8_ownvormMul_mat_32f, n8_ownvormMul_mat_32f_S2, MAM_ARGS);
}
VormStatus n8_vormMul_mat_64f(MAM_PARAMS(double))
{
    return mamChecked<Mt, 3600>(n8_ownOMP_vormMul_mat_64f, n8_ownvormMul_mat_64f, n8_ownvormMul_mat_64f_S2, MAM_ARGS);
}
VormStatus n8_vormMul_mat_32f_L(MAM_PARAMS_L(float))
{
    return mamCheckedL<Mt>(n8_ownOMP_vormMul_mat_32f_L, n8_ownvormMul_mat_32f_L, n8_ownvormMul_mat_32f_LS2, MAM_ARGS_L);
}
VormStatus n8_vormMul_mat_64f_L(MAM_PARAMS_L(double))
{
    return mamCheckedL<Mt>(n8_ownOMP_vormMul_mat_64f_L, n8_ownvormMul_mat_64f_L, n8_ownvormMul_mat_64f_LS2, MAM_ARGS_L);
}
VormStatus n8_vormMul_mat_32f_P(MAM_PARAMS_P(float))
{
    return mamCheckedP<Mt>(n8_ownOMP_vormMul_mat_32f_P, n8_ownvormMul_mat_32f_P, MAM_ARGS_P);
}
VormStatus n8_vormMul_mat_64f_P(MAM_PARAMS_P(double))
{
    return mamCheckedP<Mt>(n8_ownOMP_vormMul_mat_64f_P, n8_ownvormMul_mat_64f_P, MAM_ARGS_P);
}

VormStatus n8_ownvormMul_mat_32f_S2(MAM_PARAMS(float)) { return mamAnyStride<Mt>(MAM_ARGS); }
VormStatus n8_ownvormMul_mat_64f_S2(MAM_PARAMS(double)) { return mamAnyStride<Mt>(MAM_ARGS); }
VormStatus n8_ownvormMul_mat_32f_LS2(MAM_PARAMS_L(float))
{
    return mamEachSingle(n8_ownvormMul_mt_32f_S2, MAM_ARGS_L);
}
VormStatus n8_ownvormMul_mat_64f_LS2(MAM_PARAMS_L(double))
{
    return mamEachSingle(n8_ownvormMul_mt_64f_S2, MAM_ARGS_L);
}
VormStatus n8_ownvormMul_mat_32f_P(MAM_PARAMS_P(float)) { return mamPointers<Mt>(MAM_ARGS_P); }
VormStatus n8_ownvormMul_mat_64f_P(MAM_PARAMS_P(double)) { return mamPointers<Mt>(MAM_ARGS_P); }

}
