// vormLUBackSubst_mva: public layers, and the kernels for elements anywhere.

#include "factor/lu_back_subst.hpp"

using namespace vorm;

extern "C" {

VormStatus n8_vormLUBackSubst_mva_32f(LU_MVA_PARAMS(float))
{
    return luMvaChecked(n8_ownOMP_vormLUBackSubst_mva_32f, n8_ownvormLUBackSubst_mva_32f, n8_ownvormLUBackSubst_mva_32f_S2,
        LU_MVA_ARGS);
}
VormStatus n8_vormLUBackSubst_mva_64f(LU_MVA_PARAMS(double))
{
    return luMvaChecked(n8_ownOMP_vormLUBackSubst_mva_64f, n8_ownvormLUBackSubst_mva_64f, n8_ownvormLUBackSubst_mva_64f_S2,
        LU_MVA_ARGS);
}
VormStatus n8_vormLUBackSubst_mva_32f_L(LU_MVA_PARAMS_L(float))
{
    return luMvaCheckedL(n8_ownOMP_vormLUBackSubst_mva_32f_L, n8_ownvormLUBackSubst_mva_32f_L, n8_ownvormLUBackSubst_mva_32f_LS2,
        LU_MVA_ARGS_L);
}
VormStatus n8_vormLUBackSubst_mva_64f_L(LU_MVA_PARAMS_L(double))
{
    return luMvaCheckedL(n8_ownOMP_vormLUBackSubst_mva_64f_L, n8_ownvormLUBackSubst_mva_64f_L, n8_ownvormLUBackSubst_mva_64f_LS2,
        LU_MVA_ARGS_L);
}
VormStatus n8_vormLUBackSubst_mva_32f_P(LU_MVA_PARAMS_P(float))
{
    return luMvaCheckedP(n8_ownOMP_vormLUBackSubst_mva_32f_P, n8_ownvormLUBackSubst_mva_32f_P, LU_MVA_ARGS_P);
}
VormStatus n8_vormLUBackSubst_mva_64f_P(LU_MVA_PARAMS_P(double))
{
    return luMvaCheckedP(n8_ownOMP_vormLUBackSubst_mva_64f_P, n8_ownvormLUBackSubst_mva_64f_P, LU_MVA_ARGS_P);
}

VormStatus n8_ownvormLUBackSubst_mva_32f_S2(LU_MVA_PARAMS(float)) { return luMvaAnyStride(LU_MVA_ARGS); }
VormStatus n8_ownvormLUBackSubst_mva_64f_S2(LU_MVA_PARAMS(double)) { return luMvaAnyStride(LU_MVA_ARGS); }
VormStatus n8_ownvormLUBackSubst_mva_32f_LS2(LU_MVA_PARAMS_L(float)) { return luMvaAnyStrideL(LU_MVA_ARGS_L); }
VormStatus n8_ownvormLUBackSubst_mva_64f_LS2(LU_MVA_PARAMS_L(double)) { return luMvaAnyStrideL(LU_MVA_ARGS_L); }
VormStatus n8_ownvormLUBackSubst_mva_32f_P(LU_MVA_PARAMS_P(float)) { return luMvaPointers(LU_MVA_ARGS_P); }
VormStatus n8_ownvormLUBackSubst_mva_64f_P(LU_MVA_PARAMS_P(double)) { return luMvaPointers(LU_MVA_ARGS_P); }

}
