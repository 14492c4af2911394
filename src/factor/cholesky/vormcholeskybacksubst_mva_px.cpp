// vormCholeskyBackSubst_mva: public layers, and the kernels for elements anywhere.

#include "factor/cholesky/cholesky_back_subst_calls.hpp"

using namespace vorm;
using namespace vorm::factor;

extern "C" {

VormStatus n8_vormCholeskyBackSubst_mva_32f(CHOLESKY_MVA_PARAMS(float))
{
    return checked<1200>(choleskyMva(CHOLESKY_MVA_ARGS), n8_ownOMP_vormCholeskyBackSubst_mva_32f,
                         n8_ownvormCholeskyBackSubst_mva_32f, n8_ownvormCholeskyBackSubst_mva_32f_S2,
                         CHOLESKY_MVA_ARGS);
}
VormStatus n8_vormCholeskyBackSubst_mva_64f(CHOLESKY_MVA_PARAMS(double))
{
    return checked<720>(choleskyMva(CHOLESKY_MVA_ARGS), n8_ownOMP_vormCholeskyBackSubst_mva_64f,
                        n8_ownvormCholeskyBackSubst_mva_64f, n8_ownvormCholeskyBackSubst_mva_64f_S2, CHOLESKY_MVA_ARGS);
}
VormStatus n8_vormCholeskyBackSubst_mva_32f_L(CHOLESKY_MVA_PARAMS_L(float))
{
    return checked<720>(choleskyMvaL(CHOLESKY_MVA_ARGS_L), n8_ownOMP_vormCholeskyBackSubst_mva_32f_L,
                        n8_ownvormCholeskyBackSubst_mva_32f_L, n8_ownvormCholeskyBackSubst_mva_32f_LS2,
                        CHOLESKY_MVA_ARGS_L);
}
VormStatus n8_vormCholeskyBackSubst_mva_64f_L(CHOLESKY_MVA_PARAMS_L(double))
{
    return checked<720>(choleskyMvaL(CHOLESKY_MVA_ARGS_L), n8_ownOMP_vormCholeskyBackSubst_mva_64f_L,
                        n8_ownvormCholeskyBackSubst_mva_64f_L, n8_ownvormCholeskyBackSubst_mva_64f_LS2,
                        CHOLESKY_MVA_ARGS_L);
}
VormStatus n8_vormCholeskyBackSubst_mva_32f_P(CHOLESKY_MVA_PARAMS_P(float))
{
    return checked<720>(choleskyMvaP(CHOLESKY_MVA_ARGS_P), n8_ownOMP_vormCholeskyBackSubst_mva_32f_P,
                        n8_ownvormCholeskyBackSubst_mva_32f_P, CHOLESKY_MVA_ARGS_P);
}
VormStatus n8_vormCholeskyBackSubst_mva_64f_P(CHOLESKY_MVA_PARAMS_P(double))
{
    return checked<720>(choleskyMvaP(CHOLESKY_MVA_ARGS_P), n8_ownOMP_vormCholeskyBackSubst_mva_64f_P,
                        n8_ownvormCholeskyBackSubst_mva_64f_P, CHOLESKY_MVA_ARGS_P);
}

VormStatus n8_ownvormCholeskyBackSubst_mva_32f_S2(CHOLESKY_MVA_PARAMS(float))
{
    return anyStrideKernel(choleskyMva(CHOLESKY_MVA_ARGS));
}
VormStatus n8_ownvormCholeskyBackSubst_mva_64f_S2(CHOLESKY_MVA_PARAMS(double))
{
    return anyStrideKernel(choleskyMva(CHOLESKY_MVA_ARGS));
}
VormStatus n8_ownvormCholeskyBackSubst_mva_32f_LS2(CHOLESKY_MVA_PARAMS_L(float))
{
    return anyStrideKernel(choleskyMvaL(CHOLESKY_MVA_ARGS_L));
}
VormStatus n8_ownvormCholeskyBackSubst_mva_64f_LS2(CHOLESKY_MVA_PARAMS_L(double))
{
    return anyStrideKernel(choleskyMvaL(CHOLESKY_MVA_ARGS_L));
}
VormStatus n8_ownvormCholeskyBackSubst_mva_32f_P(CHOLESKY_MVA_PARAMS_P(float))
{
    return pointerKernel(choleskyMvaP(CHOLESKY_MVA_ARGS_P));
}
VormStatus n8_ownvormCholeskyBackSubst_mva_64f_P(CHOLESKY_MVA_PARAMS_P(double))
{
    return pointerKernel(choleskyMvaP(CHOLESKY_MVA_ARGS_P));
}
}
