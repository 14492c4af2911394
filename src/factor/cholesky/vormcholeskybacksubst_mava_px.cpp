// vormCholeskyBackSubst_mava: public layers, and the kernels for elements anywhere.

#include "factor/cholesky/cholesky_back_subst_calls.hpp"

using namespace vorm;
using namespace vorm::factor;

extern "C" {

VormStatus n8_vormCholeskyBackSubst_mava_32f(CHOLESKY_MAVA_PARAMS(float))
{
    return checked<2050, 1700>(choleskyMava(CHOLESKY_MAVA_ARGS), n8_ownOMP_vormCholeskyBackSubst_mava_32f,
                               n8_ownvormCholeskyBackSubst_mava_32f, n8_ownvormCholeskyBackSubst_mava_32f_S2,
                               CHOLESKY_MAVA_ARGS);
}
VormStatus n8_vormCholeskyBackSubst_mava_64f(CHOLESKY_MAVA_PARAMS(double))
{
    return checked<1700>(choleskyMava(CHOLESKY_MAVA_ARGS), n8_ownOMP_vormCholeskyBackSubst_mava_64f,
                         n8_ownvormCholeskyBackSubst_mava_64f, n8_ownvormCholeskyBackSubst_mava_64f_S2,
                         CHOLESKY_MAVA_ARGS);
}
VormStatus n8_vormCholeskyBackSubst_mava_32f_L(CHOLESKY_MAVA_PARAMS_L(float))
{
    return checked<1700>(choleskyMavaL(CHOLESKY_MAVA_ARGS_L), n8_ownOMP_vormCholeskyBackSubst_mava_32f_L,
                         n8_ownvormCholeskyBackSubst_mava_32f_L, n8_ownvormCholeskyBackSubst_mava_32f_LS2,
                         CHOLESKY_MAVA_ARGS_L);
}
VormStatus n8_vormCholeskyBackSubst_mava_64f_L(CHOLESKY_MAVA_PARAMS_L(double))
{
    return checked<1700>(choleskyMavaL(CHOLESKY_MAVA_ARGS_L), n8_ownOMP_vormCholeskyBackSubst_mava_64f_L,
                         n8_ownvormCholeskyBackSubst_mava_64f_L, n8_ownvormCholeskyBackSubst_mava_64f_LS2,
                         CHOLESKY_MAVA_ARGS_L);
}
VormStatus n8_vormCholeskyBackSubst_mava_32f_P(CHOLESKY_MAVA_PARAMS_P(float))
{
    return checked<1700>(choleskyMavaP(CHOLESKY_MAVA_ARGS_P), n8_ownOMP_vormCholeskyBackSubst_mava_32f_P,
                         n8_ownvormCholeskyBackSubst_mava_32f_P, CHOLESKY_MAVA_ARGS_P);
}
VormStatus n8_vormCholeskyBackSubst_mava_64f_P(CHOLESKY_MAVA_PARAMS_P(double))
{
    return checked<2050>(choleskyMavaP(CHOLESKY_MAVA_ARGS_P), n8_ownOMP_vormCholeskyBackSubst_mava_64f_P,
                         n8_ownvormCholeskyBackSubst_mava_64f_P, CHOLESKY_MAVA_ARGS_P);
}

VormStatus n8_ownvormCholeskyBackSubst_mava_32f_S2(CHOLESKY_MAVA_PARAMS(float))
{
    return anyStrideKernel(choleskyMava(CHOLESKY_MAVA_ARGS));
}
VormStatus n8_ownvormCholeskyBackSubst_mava_64f_S2(CHOLESKY_MAVA_PARAMS(double))
{
    return anyStrideKernel(choleskyMava(CHOLESKY_MAVA_ARGS));
}
VormStatus n8_ownvormCholeskyBackSubst_mava_32f_LS2(CHOLESKY_MAVA_PARAMS_L(float))
{
    return anyStrideKernel(choleskyMavaL(CHOLESKY_MAVA_ARGS_L));
}
VormStatus n8_ownvormCholeskyBackSubst_mava_64f_LS2(CHOLESKY_MAVA_PARAMS_L(double))
{
    return anyStrideKernel(choleskyMavaL(CHOLESKY_MAVA_ARGS_L));
}
VormStatus n8_ownvormCholeskyBackSubst_mava_32f_P(CHOLESKY_MAVA_PARAMS_P(float))
{
    return pointerKernel(choleskyMavaP(CHOLESKY_MAVA_ARGS_P));
}
VormStatus n8_ownvormCholeskyBackSubst_mava_64f_P(CHOLESKY_MAVA_PARAMS_P(double))
{
    return pointerKernel(choleskyMavaP(CHOLESKY_MAVA_ARGS_P));
}
}
