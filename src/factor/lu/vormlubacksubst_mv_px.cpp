// vormLUBackSubst_mv: public layers, and the kernels for elements anywhere.

#include "factor/lu/lu_back_subst_calls.hpp"

using namespace vorm;
using namespace vorm::factor;

extern "C" {

VormStatus n8_vormLUBackSubst_mv_32f(LU_MV_PARAMS(float))
{
    return checked(luMv(LU_MV_ARGS), n8_ownvormLUBackSubst_mv_32f, n8_ownvormLUBackSubst_mv_32f_S2, LU_MV_ARGS);
}
VormStatus n8_vormLUBackSubst_mv_64f(LU_MV_PARAMS(double))
{
    return checked(luMv(LU_MV_ARGS), n8_ownvormLUBackSubst_mv_64f, n8_ownvormLUBackSubst_mv_64f_S2, LU_MV_ARGS);
}
VormStatus n8_vormLUBackSubst_mv_32f_P(LU_MV_PARAMS_P(float))
{
    return checked(luMvP(LU_MV_ARGS_P), n8_ownvormLUBackSubst_mv_32f_P, LU_MV_ARGS_P);
}
VormStatus n8_vormLUBackSubst_mv_64f_P(LU_MV_PARAMS_P(double))
{
    return checked(luMvP(LU_MV_ARGS_P), n8_ownvormLUBackSubst_mv_64f_P, LU_MV_ARGS_P);
}

VormStatus n8_ownvormLUBackSubst_mv_32f_S2(LU_MV_PARAMS(float)) { return anyStrideKernel(luMv(LU_MV_ARGS)); }
VormStatus n8_ownvormLUBackSubst_mv_64f_S2(LU_MV_PARAMS(double)) { return anyStrideKernel(luMv(LU_MV_ARGS)); }
VormStatus n8_ownvormLUBackSubst_mv_32f_P(LU_MV_PARAMS_P(float)) { return anyStrideKernel(luMvP(LU_MV_ARGS_P)); }
VormStatus n8_ownvormLUBackSubst_mv_64f_P(LU_MV_PARAMS_P(double)) { return anyStrideKernel(luMvP(LU_MV_ARGS_P)); }
}
