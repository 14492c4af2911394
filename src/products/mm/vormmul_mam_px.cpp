// vormMul_mam: public layers, and the kernels for elements anywhere.

#include "products/mam.hpp"

using namespace vorm;

extern "C" {

VormStatus n8_vormMul_mam_32f(MAM_PARAMS(float))
{
    return mamChecked<Mm, 2500>(n8_ownOMP_vormMul_mam_32f, n8_ownvormMul_mam_32f, n8_ownvormMul_mam_32f_S2, MAM_ARGS);
}
VormStatus n8_vormMul_mam_64f(MAM_PARAMS(double))
{
    return mamChecked<Mm, 3600>(n8_ownOMP_vormMul_mam_64f, n8_ownvormMul_mam_64f, n8_ownvormMul_mam_64f_S2, MAM_ARGS);
}
VormStatus n8_vormMul_mam_32f_L(MAM_PARAMS_L(float))
{
    return mamCheckedL<Mm>(n8_ownOMP_vormMul_mam_32f_L, n8_ownvormMul_mam_32f_L, n8_ownvormMul_mam_32f_LS2, MAM_ARGS_L);
}
VormStatus n8_vormMul_mam_64f_L(MAM_PARAMS_L(double))
{
    return mamCheckedL<Mm>(n8_ownOMP_vormMul_mam_64f_L, n8_ownvormMul_mam_64f_L, n8_ownvormMul_mam_64f_LS2, MAM_ARGS_L);
}
VormStatus n8_vormMul_mam_32f_P(MAM_PARAMS_P(float))
{
    return mamCheckedP<Mm>(n8_ownOMP_vormMul_mam_32f_P, n8_ownvormMul_mam_32f_P, MAM_ARGS_P);
}
VormStatus n8_vormMul_mam_64f_P(MAM_PARAMS_P(double))
{
    return mamCheckedP<Mm>(n8_ownOMP_vormMul_mam_64f_P, n8_ownvormMul_mam_64f_P, MAM_ARGS_P);
}

VormStatus n8_ownvormMul_mam_32f_S2(MAM_PARAMS(float)) { return mamAnyStride<Mm>(MAM_ARGS); }
VormStatus n8_ownvormMul_mam_64f_S2(MAM_PARAMS(double)) { return mamAnyStride<Mm>(MAM_ARGS); }
VormStatus n8_ownvormMul_mam_32f_LS2(MAM_PARAMS_L(float))
{
    return mamEachSingle(n8_ownvormMul_mm_32f_S2, MAM_ARGS_L);
}
VormStatus n8_ownvormMul_mam_64f_LS2(MAM_PARAMS_L(double))
{
    return mamEachSingle(n8_ownvormMul_mm_64f_S2, MAM_ARGS_L);
}
VormStatus n8_ownvormMul_mam_32f_P(MAM_PARAMS_P(float)) { return mamPointers<Mm>(MAM_ARGS_P); }
VormStatus n8_ownvormMul_mam_64f_P(MAM_PARAMS_P(double)) { return mamPointers<Mm>(MAM_ARGS_P); }

}
