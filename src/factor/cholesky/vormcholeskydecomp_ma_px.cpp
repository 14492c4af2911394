// vormCholeskyDecomp_ma: public layers, and the kernels for elements anywhere.

#include "factor/cholesky/cholesky_decomp_calls.hpp"

using namespace vorm;
using namespace vorm::factor;

extern "C" {

VormStatus n8_vormCholeskyDecomp_ma_32f(CHOLESKY_MA_PARAMS(float))
{
    return checked<7500>(choleskyMa(CHOLESKY_MA_ARGS), n8_ownOMP_vormCholeskyDecomp_ma_32f,
                         n8_ownvormCholeskyDecomp_ma_32f, n8_ownvormCholeskyDecomp_ma_32f_S2, CHOLESKY_MA_ARGS);
}
VormStatus n8_vormCholeskyDecomp_ma_64f(CHOLESKY_MA_PARAMS(double))
{
    return checked<2000>(choleskyMa(CHOLESKY_MA_ARGS), n8_ownOMP_vormCholeskyDecomp_ma_64f,
                         n8_ownvormCholeskyDecomp_ma_64f, n8_ownvormCholeskyDecomp_ma_64f_S2, CHOLESKY_MA_ARGS);
}
VormStatus n8_vormCholeskyDecomp_ma_32f_L(CHOLESKY_MA_PARAMS_L(float))
{
    return checked<2000>(choleskyMaL(CHOLESKY_MA_ARGS_L), n8_ownOMP_vormCholeskyDecomp_ma_32f_L,
                         n8_ownvormCholeskyDecomp_ma_32f_L, n8_ownvormCholeskyDecomp_ma_32f_LS2, CHOLESKY_MA_ARGS_L);
}
VormStatus n8_vormCholeskyDecomp_ma_64f_L(CHOLESKY_MA_PARAMS_L(double))
{
    return checked<720, 2000>(choleskyMaL(CHOLESKY_MA_ARGS_L), n8_ownOMP_vormCholeskyDecomp_ma_64f_L,
                              n8_ownvormCholeskyDecomp_ma_64f_L, n8_ownvormCholeskyDecomp_ma_64f_LS2,
                              CHOLESKY_MA_ARGS_L);
}
VormStatus n8_vormCholeskyDecomp_ma_32f_P(CHOLESKY_MA_PARAMS_P(float))
{
    return checked<2000>(choleskyMaP(CHOLESKY_MA_ARGS_P), n8_ownOMP_vormCholeskyDecomp_ma_32f_P,
                         n8_ownvormCholeskyDecomp_ma_32f_P, CHOLESKY_MA_ARGS_P);
}
VormStatus n8_vormCholeskyDecomp_ma_64f_P(CHOLESKY_MA_PARAMS_P(double))
{
    return checked<2000>(choleskyMaP(CHOLESKY_MA_ARGS_P), n8_ownOMP_vormCholeskyDecomp_ma_64f_P,
                         n8_ownvormCholeskyDecomp_ma_64f_P, CHOLESKY_MA_ARGS_P);
}

VormStatus n8_ownvormCholeskyDecomp_ma_32f_S2(CHOLESKY_MA_PARAMS(float))
{
    return anyStrideKernel(choleskyMa(CHOLESKY_MA_ARGS));
}
VormStatus n8_ownvormCholeskyDecomp_ma_64f_S2(CHOLESKY_MA_PARAMS(double))
{
    return anyStrideKernel(choleskyMa(CHOLESKY_MA_ARGS));
}
VormStatus n8_ownvormCholeskyDecomp_ma_32f_LS2(CHOLESKY_MA_PARAMS_L(float))
{
    return anyStrideKernel(choleskyMaL(CHOLESKY_MA_ARGS_L));
}
VormStatus n8_ownvormCholeskyDecomp_ma_64f_LS2(CHOLESKY_MA_PARAMS_L(double))
{
    return anyStrideKernel(choleskyMaL(CHOLESKY_MA_ARGS_L));
}
VormStatus n8_ownvormCholeskyDecomp_ma_32f_P(CHOLESKY_MA_PARAMS_P(float))
{
    return pointerKernel(choleskyMaP(CHOLESKY_MA_ARGS_P));
}
VormStatus n8_ownvormCholeskyDecomp_ma_64f_P(CHOLESKY_MA_PARAMS_P(double))
{
    return pointerKernel(choleskyMaP(CHOLESKY_MA_ARGS_P));
}
}
