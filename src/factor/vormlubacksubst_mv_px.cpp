// vormLUBackSubst_mv: public layers, and the kernels for elements anywhere.

#include "factor/lu_back_subst.hpp"

using namespace vorm;

extern "C" {

VormStatus n8_vormLUBackSubst_mv_32f(LU_MV_PARAMS(float))
{
    return luMvChecked(n8_ownvormLUBackSubst_mv_32f, n8_ownvormLUBackSubst_mv_32f_S2, LU_MV_ARGS);
}
VormStatus n8_vormLUBackSubst_mv_64f(LU_MV_PARAMS(double))
{
    return luMvChecked(n8_ownvormLUBackSubst_mv_64f, n8_ownvormLUBackSubst_mv_64f_S2, LU_MV_ARGS);
}
VormStatus n8_vormLUBackSubst_mv_32f_P(LU_MV_PARAMS_P(float))
{
    return luMvCheckedP(n8_ownvormLUBackSubst_mv_32f_P, LU_MV_ARGS_P);
}
VormStatus n8_vormLUBackSubst_mv_64f_P(LU_MV_PARAMS_P(double))
{
    return luMvCheckedP(n8_ownvormLUBackSubst_mv_64f_P, LU_MV_ARGS_P);
}

VormStatus n8_ownvormLUBackSubst_mv_32f_S2(LU_MV_PARAMS(float)) { return luMvAnyStride(LU_MV_ARGS); }
VormStatus n8_ownvormLUBackSubst_mv_64f_S2(LU_MV_PARAMS(double)) { return luMvAnyStride(LU_MV_ARGS); }
VormStatus n8_ownvormLUBackSubst_mv_32f_P(LU_MV_PARAMS_P(float)) { return luMvPointers(LU_MV_ARGS_P); }
VormStatus n8_ownvormLUBackSubst_mv_64f_P(LU_MV_PARAMS_P(double)) { return luMvPointers(LU_MV_ARGS_P); }

}
