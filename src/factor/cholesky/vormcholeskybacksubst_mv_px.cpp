// vormCholeskyBackSubst_mv: public layers, and the kernels for elements anywhere.

#include "factor/cholesky/cholesky_back_subst_calls.hpp"

using namespace vorm;
using namespace vorm::factor;

extern "C" {

VormStatus n8_vormCholeskyBackSubst_mv_32f(CHOLESKY_MV_PARAMS(float))
{
    return checked(choleskyMv(CHOLESKY_MV_ARGS), n8_ownvormCholeskyBackSubst_mv_32f,
                   n8_ownvormCholeskyBackSubst_mv_32f_S2, CHOLESKY_MV_ARGS);
}
VormStatus n8_vormCholeskyBackSubst_mv_64f(CHOLESKY_MV_PARAMS(double))
{
    return checked(choleskyMv(CHOLESKY_MV_ARGS), n8_ownvormCholeskyBackSubst_mv_64f,
                   n8_ownvormCholeskyBackSubst_mv_64f_S2, CHOLESKY_MV_ARGS);
}
VormStatus n8_vormCholeskyBackSubst_mv_32f_P(CHOLESKY_MV_PARAMS_P(float))
{
    return checked(choleskyMvP(CHOLESKY_MV_ARGS_P), n8_ownvormCholeskyBackSubst_mv_32f_P, CHOLESKY_MV_ARGS_P);
}
VormStatus n8_vormCholeskyBackSubst_mv_64f_P(CHOLESKY_MV_PARAMS_P(double))
{
    return checked(choleskyMvP(CHOLESKY_MV_ARGS_P), n8_ownvormCholeskyBackSubst_mv_64f_P, CHOLESKY_MV_ARGS_P);
}

VormStatus n8_ownvormCholeskyBackSubst_mv_32f_S2(CHOLESKY_MV_PARAMS(float))
{
    return anyStrideKernel(choleskyMv(CHOLESKY_MV_ARGS));
}
VormStatus n8_ownvormCholeskyBackSubst_mv_64f_S2(CHOLESKY_MV_PARAMS(double))
{
    return anyStrideKernel(choleskyMv(CHOLESKY_MV_ARGS));
}
VormStatus n8_ownvormCholeskyBackSubst_mv_32f_P(CHOLESKY_MV_PARAMS_P(float))
{
    return anyStrideKernel(choleskyMvP(CHOLESKY_MV_ARGS_P));
}
VormStatus n8_ownvormCholeskyBackSubst_mv_64f_P(CHOLESKY_MV_PARAMS_P(double))
{
    return anyStrideKernel(choleskyMvP(CHOLESKY_MV_ARGS_P));
}
}
