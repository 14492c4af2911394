// vormLUBackSubst_mava: public layers, and the kernels for elements anywhere.

#include "factor/lu_back_subst.hpp"

using namespace vorm;

extern "C" {

VormStatus n8_vormLUBackSubst_mava_32f(LU_MAVA_PARAMS(float))
{
    return luMavaChecked(n8_ownOMP_vormLUBackSubst_mava_32f, n8_ownvormLUBackSubst_mava_32f, n8_ownvormLUBackSubst_mava_32f_S2,
        LU_MAVA_ARGS);
}
VormStatus n8_vormLUBackSubst_mava_64f(LU_MAVA_PARAMS(double))
{
    return luMavaChecked(n8_ownOMP_vormLUBackSubst_mava_64f, n8_ownvormLUBackSubst_mava_64f, n8_ownvormLUBackSubst_mava_64f_S2,
        LU_MAVA_ARGS);
}
VormStatus n8_vormLUBackSubst_mava_32f_L(LU_MAVA_PARAMS_L(float))
{
    return luMavaCheckedL(n8_ownOMP_vormLUBackSubst_mava_32f_L, n8_ownvormLUBackSubst_mava_32f_L, n8_ownvormLUBackSubst_mava_32f_LS2,
        LU_MAVA_ARGS_L);
}
VormStatus n8_vormLUBackSubst_mava_64f_L(LU_MAVA_PARAMS_L(double))
{
    return luMavaCheckedL(n8_ownOMP_vormLUBackSubst_mava_64f_L, n8_ownvormLUBackSubst_mava_64f_L, n8_ownvormLUBackSubst_mava_64f_LS2,
        LU_MAVA_ARGS_L);
}
VormStatus n8_vormLUBackSubst_mava_32f_P(LU_MAVA_PARAMS_P(float))
{
    return luMavaCheckedP(n8_ownOMP_vormLUBackSubst_mava_32f_P, n8_ownvormLUBackSubst_mava_32f_P, LU_MAVA_ARGS_P);
}
VormStatus n8_vormLUBackSubst_mava_64f_P(LU_MAVA_PARAMS_P(double))
{
    return luMavaCheckedP(n8_ownOMP_vormLUBackSubst_mava_64f_P, n8_ownvormLUBackSubst_mava_64f_P, LU_MAVA_ARGS_P);
}

VormStatus n8_ownvormLUBackSubst_mava_32f_S2(LU_MAVA_PARAMS(float)) { return luMavaAnyStride(LU_MAVA_ARGS); }
VormStatus n8_ownvormLUBackSubst_mava_64f_S2(LU_MAVA_PARAMS(double)) { return luMavaAnyStride(LU_MAVA_ARGS); }
VormStatus n8_ownvormLUBackSubst_mava_32f_LS2(LU_MAVA_PARAMS_L(float)) { return luMavaAnyStrideL(LU_MAVA_ARGS_L); }
VormStatus n8_ownvormLUBackSubst_mava_64f_LS2(LU_MAVA_PARAMS_L(double)) { return luMavaAnyStrideL(LU_MAVA_ARGS_L); }
VormStatus n8_ownvormLUBackSubst_mava_32f_P(LU_MAVA_PARAMS_P(float)) { return luMavaPointers(LU_MAVA_ARGS_P); }
VormStatus n8_ownvormLUBackSubst_mava_64f_P(LU_MAVA_PARAMS_P(double)) { return luMavaPointers(LU_MAVA_ARGS_P); }

}
