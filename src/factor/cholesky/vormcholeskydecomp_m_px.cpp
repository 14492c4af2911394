// vormCholeskyDecomp_m: public layers, and the kernels for elements anywhere.

#include "factor/cholesky/cholesky_decomp_calls.hpp"

using namespace vorm;
using namespace vorm::factor;

extern "C" {

VormStatus n8_vormCholeskyDecomp_m_32f(CHOLESKY_M_PARAMS(float))
{
    return checked(choleskyM(CHOLESKY_M_ARGS), n8_ownvormCholeskyDecomp_m_32f, n8_ownvormCholeskyDecomp_m_32f_S2,
                   CHOLESKY_M_ARGS);
}
VormStatus n8_vormCholeskyDecomp_m_64f(CHOLESKY_M_PARAMS(double))
{
    return checked(choleskyM(CHOLESKY_M_ARGS), n8_ownvormCholeskyDecomp_m_64f, n8_ownvormCholeskyDecomp_m_64f_S2,
                   CHOLESKY_M_ARGS);
}
VormStatus n8_vormCholeskyDecomp_m_32f_P(CHOLESKY_M_PARAMS_P(float))
{
    return checked(choleskyMP(CHOLESKY_M_ARGS_P), n8_ownvormCholeskyDecomp_m_32f_P, CHOLESKY_M_ARGS_P);
}
VormStatus n8_vormCholeskyDecomp_m_64f_P(CHOLESKY_M_PARAMS_P(double))
{
    return checked(choleskyMP(CHOLESKY_M_ARGS_P), n8_ownvormCholeskyDecomp_m_64f_P, CHOLESKY_M_ARGS_P);
}

VormStatus n8_ownvormCholeskyDecomp_m_32f_S2(CHOLESKY_M_PARAMS(float))
{
    return anyStrideKernel(choleskyM(CHOLESKY_M_ARGS));
}
VormStatus n8_ownvormCholeskyDecomp_m_64f_S2(CHOLESKY_M_PARAMS(double))
{
    return anyStrideKernel(choleskyM(CHOLESKY_M_ARGS));
}
VormStatus n8_ownvormCholeskyDecomp_m_32f_P(CHOLESKY_M_PARAMS_P(float))
{
    return anyStrideKernel(choleskyMP(CHOLESKY_M_ARGS_P));
}
VormStatus n8_ownvormCholeskyDecomp_m_64f_P(CHOLESKY_M_PARAMS_P(double))
{
    return anyStrideKernel(choleskyMP(CHOLESKY_M_ARGS_P));
}
}
