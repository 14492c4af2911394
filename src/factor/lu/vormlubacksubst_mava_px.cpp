// vormLUBackSubst_mava: public layers, and the kernels for elements anywhere.

#include "factor/lu/lu_back_subst_calls.hpp"

using namespace vorm;
using namespace vorm::factor;

extern "C" {

VormStatus n8_vormLUBackSubst_mava_32f(LU_MAVA_PARAMS(float))
{
    return checked<from(1201)>(luMava(LU_MAVA_ARGS), n8_ownOMP_vormLUBackSubst_mava_32f, n8_ownvormLUBackSubst_mava_32f,
                               n8_ownvormLUBackSubst_mava_32f_S2, LU_MAVA_ARGS);
}
VormStatus n8_vormLUBackSubst_mava_64f(LU_MAVA_PARAMS(double))
{
    return checked<from(1201)>(luMava(LU_MAVA_ARGS), n8_ownOMP_vormLUBackSubst_mava_64f, n8_ownvormLUBackSubst_mava_64f,
                               n8_ownvormLUBackSubst_mava_64f_S2, LU_MAVA_ARGS);
}
VormStatus n8_vormLUBackSubst_mava_32f_L(LU_MAVA_PARAMS_L(float))
{
    return checked<from(1201)>(luMavaL(LU_MAVA_ARGS_L), n8_ownOMP_vormLUBackSubst_mava_32f_L,
                               n8_ownvormLUBackSubst_mava_32f_L, n8_ownvormLUBackSubst_mava_32f_LS2, LU_MAVA_ARGS_L);
}
VormStatus n8_vormLUBackSubst_mava_64f_L(LU_MAVA_PARAMS_L(double))
{
    return checked<from(1201)>(luMavaL(LU_MAVA_ARGS_L), n8_ownOMP_vormLUBackSubst_mava_64f_L,
                               n8_ownvormLUBackSubst_mava_64f_L, n8_ownvormLUBackSubst_mava_64f_LS2, LU_MAVA_ARGS_L);
}
VormStatus n8_vormLUBackSubst_mava_32f_P(LU_MAVA_PARAMS_P(float))
{
    return checked<from(1201)>(luMavaP(LU_MAVA_ARGS_P), n8_ownOMP_vormLUBackSubst_mava_32f_P,
                               n8_ownvormLUBackSubst_mava_32f_P, LU_MAVA_ARGS_P);
}
VormStatus n8_vormLUBackSubst_mava_64f_P(LU_MAVA_PARAMS_P(double))
{
    return checked<from(1201)>(luMavaP(LU_MAVA_ARGS_P), n8_ownOMP_vormLUBackSubst_mava_64f_P,
                               n8_ownvormLUBackSubst_mava_64f_P, LU_MAVA_ARGS_P);
}

VormStatus n8_ownvormLUBackSubst_mava_32f_S2(LU_MAVA_PARAMS(float)) { return anyStrideKernel(luMava(LU_MAVA_ARGS)); }
VormStatus n8_ownvormLUBackSubst_mava_64f_S2(LU_MAVA_PARAMS(double)) { return anyStrideKernel(luMava(LU_MAVA_ARGS)); }
VormStatus n8_ownvormLUBackSubst_mava_32f_LS2(LU_MAVA_PARAMS_L(float))
{
    return anyStrideKernel(luMavaL(LU_MAVA_ARGS_L));
}
VormStatus n8_ownvormLUBackSubst_mava_64f_LS2(LU_MAVA_PARAMS_L(double))
{
    return anyStrideKernel(luMavaL(LU_MAVA_ARGS_L));
}
VormStatus n8_ownvormLUBackSubst_mava_32f_P(LU_MAVA_PARAMS_P(float)) { return pointerKernel(luMavaP(LU_MAVA_ARGS_P)); }
VormStatus n8_ownvormLUBackSubst_mava_64f_P(LU_MAVA_PARAMS_P(double)) { return pointerKernel(luMavaP(LU_MAVA_ARGS_P)); }
}
