// vormLUBackSubst_mva: public layers, and the kernels for elements anywhere.

#include "factor/lu/lu_back_subst_calls.hpp"

using namespace vorm;
using namespace vorm::factor;

extern "C" {

VormStatus n8_vormLUBackSubst_mva_32f(LU_MVA_PARAMS(float))
{
    return checked<from(701)>(luMva(LU_MVA_ARGS), n8_ownOMP_vormLUBackSubst_mva_32f, n8_ownvormLUBackSubst_mva_32f,
                              n8_ownvormLUBackSubst_mva_32f_S2, LU_MVA_ARGS);
}
VormStatus n8_vormLUBackSubst_mva_64f(LU_MVA_PARAMS(double))
{
    return checked<from(701)>(luMva(LU_MVA_ARGS), n8_ownOMP_vormLUBackSubst_mva_64f, n8_ownvormLUBackSubst_mva_64f,
                              n8_ownvormLUBackSubst_mva_64f_S2, LU_MVA_ARGS);
}
VormStatus n8_vormLUBackSubst_mva_32f_L(LU_MVA_PARAMS_L(float))
{
    return checked<from(701)>(luMvaL(LU_MVA_ARGS_L), n8_ownOMP_vormLUBackSubst_mva_32f_L,
                              n8_ownvormLUBackSubst_mva_32f_L, n8_ownvormLUBackSubst_mva_32f_LS2, LU_MVA_ARGS_L);
}
VormStatus n8_vormLUBackSubst_mva_64f_L(LU_MVA_PARAMS_L(double))
{
    return checked<from(701)>(luMvaL(LU_MVA_ARGS_L), n8_ownOMP_vormLUBackSubst_mva_64f_L,
                              n8_ownvormLUBackSubst_mva_64f_L, n8_ownvormLUBackSubst_mva_64f_LS2, LU_MVA_ARGS_L);
}
VormStatus n8_vormLUBackSubst_mva_32f_P(LU_MVA_PARAMS_P(float))
{
    return checked<from(701)>(luMvaP(LU_MVA_ARGS_P), n8_ownOMP_vormLUBackSubst_mva_32f_P,
                              n8_ownvormLUBackSubst_mva_32f_P, LU_MVA_ARGS_P);
}
VormStatus n8_vormLUBackSubst_mva_64f_P(LU_MVA_PARAMS_P(double))
{
    return checked<from(701)>(luMvaP(LU_MVA_ARGS_P), n8_ownOMP_vormLUBackSubst_mva_64f_P,
                              n8_ownvormLUBackSubst_mva_64f_P, LU_MVA_ARGS_P);
}

VormStatus n8_ownvormLUBackSubst_mva_32f_S2(LU_MVA_PARAMS(float)) { return anyStrideKernel(luMva(LU_MVA_ARGS)); }
VormStatus n8_ownvormLUBackSubst_mva_64f_S2(LU_MVA_PARAMS(double)) { return anyStrideKernel(luMva(LU_MVA_ARGS)); }
VormStatus n8_ownvormLUBackSubst_mva_32f_LS2(LU_MVA_PARAMS_L(float)) { return anyStrideKernel(luMvaL(LU_MVA_ARGS_L)); }
VormStatus n8_ownvormLUBackSubst_mva_64f_LS2(LU_MVA_PARAMS_L(double)) { return anyStrideKernel(luMvaL(LU_MVA_ARGS_L)); }
VormStatus n8_ownvormLUBackSubst_mva_32f_P(LU_MVA_PARAMS_P(float)) { return pointerKernel(luMvaP(LU_MVA_ARGS_P)); }
VormStatus n8_ownvormLUBackSubst_mva_64f_P(LU_MVA_PARAMS_P(double)) { return pointerKernel(luMvaP(LU_MVA_ARGS_P)); }
}
