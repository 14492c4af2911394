// vormCholeskyDecomp_ma: team-parallel drivers.

#include "factor/cholesky/cholesky_decomp.hpp"
#include "frame/driver.hpp"

using namespace vorm;
using namespace vorm::factor;

extern "C" {

VormStatus n8_ownOMP_vormCholeskyDecomp_ma_32f(CHOLESKY_MA_PARAMS(float))
{
    return team<StatusNotPositiveDefinite>(choleskyMa(CHOLESKY_MA_ARGS), n8_ownvormCholeskyDecomp_ma_32f,
                                           n8_ownvormCholeskyDecomp_ma_32f_S2);
}
VormStatus n8_ownOMP_vormCholeskyDecomp_ma_64f(CHOLESKY_MA_PARAMS(double))
{
    return team<StatusNotPositiveDefinite>(choleskyMa(CHOLESKY_MA_ARGS), n8_ownvormCholeskyDecomp_ma_64f,
                                           n8_ownvormCholeskyDecomp_ma_64f_S2);
}
VormStatus n8_ownOMP_vormCholeskyDecomp_ma_32f_L(CHOLESKY_MA_PARAMS_L(float))
{
    return team<StatusNotPositiveDefinite>(choleskyMaL(CHOLESKY_MA_ARGS_L), n8_ownvormCholeskyDecomp_ma_32f_L,
                                           n8_ownvormCholeskyDecomp_ma_32f_LS2);
}
VormStatus n8_ownOMP_vormCholeskyDecomp_ma_64f_L(CHOLESKY_MA_PARAMS_L(double))
{
    return team<StatusNotPositiveDefinite>(choleskyMaL(CHOLESKY_MA_ARGS_L), n8_ownvormCholeskyDecomp_ma_64f_L,
                                           n8_ownvormCholeskyDecomp_ma_64f_LS2);
}
VormStatus n8_ownOMP_vormCholeskyDecomp_ma_32f_P(CHOLESKY_MA_PARAMS_P(float))
{
    return team<StatusNotPositiveDefinite>(choleskyMaP(CHOLESKY_MA_ARGS_P), n8_ownvormCholeskyDecomp_ma_32f_P);
}
VormStatus n8_ownOMP_vormCholeskyDecomp_ma_64f_P(CHOLESKY_MA_PARAMS_P(double))
{
    return team<StatusNotPositiveDefinite>(choleskyMaP(CHOLESKY_MA_ARGS_P), n8_ownvormCholeskyDecomp_ma_64f_P);
}
}
