// vormAdd_mam: public layers, and the kernels for elements anywhere.

#include "elementwise/matrix_calls.hpp"
#include "elementwise/shapes/mam.hpp"

using namespace vorm;
using namespace vorm::elementwise;

extern "C" {

VormStatus n8_vormAdd_mam_32f(MAM_PARAMS(float))
{
    return checked<from(3000), from(2000)>(inOrder<StridesFirst>(mam<Mm>(MAM_ARGS)), n8_ownOMP_vormAdd_mam_32f,
                                           n8_ownvormAdd_mam_32f, n8_ownvormAdd_mam_32f_S2, MAM_ARGS);
}
VormStatus n8_vormAdd_mam_64f(MAM_PARAMS(double))
{
    return checked<from(2000)>(inOrder<StridesFirst>(mam<Mm>(MAM_ARGS)), n8_ownOMP_vormAdd_mam_64f,
                               n8_ownvormAdd_mam_64f, n8_ownvormAdd_mam_64f_S2, MAM_ARGS);
}
VormStatus n8_vormAdd_mam_32f_L(MAM_PARAMS_L(float))
{
    return checked<from(2000)>(mamL<Mm>(MAM_ARGS_L), n8_ownOMP_vormAdd_mam_32f_L, n8_ownvormAdd_mam_32f_L,
                               n8_ownvormAdd_mam_32f_LS2, MAM_ARGS_L);
}
VormStatus n8_vormAdd_mam_64f_L(MAM_PARAMS_L(double))
{
    return checked<from(2000)>(mamL<Mm>(MAM_ARGS_L), n8_ownOMP_vormAdd_mam_64f_L, n8_ownvormAdd_mam_64f_L,
                               n8_ownvormAdd_mam_64f_LS2, MAM_ARGS_L);
}
VormStatus n8_vormAdd_mam_32f_P(MAM_PARAMS_P(float))
{
    return checked<from(2000)>(mamP<Mm>(MAM_ARGS_P), n8_ownOMP_vormAdd_mam_32f_P, n8_ownvormAdd_mam_32f_P, MAM_ARGS_P);
}
VormStatus n8_vormAdd_mam_64f_P(MAM_PARAMS_P(double))
{
    return checked<from(2000)>(mamP<Mm>(MAM_ARGS_P), n8_ownOMP_vormAdd_mam_64f_P, n8_ownvormAdd_mam_64f_P, MAM_ARGS_P);
}

VormStatus n8_ownvormAdd_mam_32f_S2(MAM_PARAMS(float)) { return anyStrideKernel<Add>(mam<Mm>(MAM_ARGS)); }
VormStatus n8_ownvormAdd_mam_64f_S2(MAM_PARAMS(double)) { return anyStrideKernel<Add>(mam<Mm>(MAM_ARGS)); }
VormStatus n8_ownvormAdd_mam_32f_LS2(MAM_PARAMS_L(float))
{
    return eachSingle(mamL<Mm>(MAM_ARGS_L), n8_ownvormAdd_mm_32f_S2);
}
VormStatus n8_ownvormAdd_mam_64f_LS2(MAM_PARAMS_L(double))
{
    return eachSingle(mamL<Mm>(MAM_ARGS_L), n8_ownvormAdd_mm_64f_S2);
}
VormStatus n8_ownvormAdd_mam_32f_P(MAM_PARAMS_P(float)) { return pointerKernel<Add>(mamP<Mm>(MAM_ARGS_P)); }
VormStatus n8_ownvormAdd_mam_64f_P(MAM_PARAMS_P(double)) { return pointerKernel<Add>(mamP<Mm>(MAM_ARGS_P)); }
}
