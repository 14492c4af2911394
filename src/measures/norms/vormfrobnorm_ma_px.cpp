// vormFrobNorm_ma: public layers, and the kernels for elements anywhere.

#include "measures/calls.hpp"
#include "measures/norms/frobnorm.hpp"

using namespace vorm;
using namespace vorm::measures;

extern "C" {

VormStatus n8_vormFrobNorm_ma_32f(FROB_MA_PARAMS(float))
{
    return checked<21600>(frobNormMa(FROB_MA_ARGS), n8_ownOMP_vormFrobNorm_ma_32f, n8_ownvormFrobNorm_ma_32f,
                          n8_ownvormFrobNorm_ma_32f_S2, FROB_MA_ARGS);
}
VormStatus n8_vormFrobNorm_ma_64f(FROB_MA_PARAMS(double))
{
    return checked<21600>(frobNormMa(FROB_MA_ARGS), n8_ownOMP_vormFrobNorm_ma_64f, n8_ownvormFrobNorm_ma_64f,
                          n8_ownvormFrobNorm_ma_64f_S2, FROB_MA_ARGS);
}
VormStatus n8_vormFrobNorm_ma_32f_L(FROB_MA_PARAMS_L(float))
{
    return checked<14400>(frobNormMaL(FROB_MA_ARGS_L), n8_ownOMP_vormFrobNorm_ma_32f_L, n8_ownvormFrobNorm_ma_32f_L,
                          n8_ownvormFrobNorm_ma_32f_LS2, FROB_MA_ARGS_L);
}
VormStatus n8_vormFrobNorm_ma_64f_L(FROB_MA_PARAMS_L(double))
{
    return checked<14400>(frobNormMaL(FROB_MA_ARGS_L), n8_ownOMP_vormFrobNorm_ma_64f_L, n8_ownvormFrobNorm_ma_64f_L,
                          n8_ownvormFrobNorm_ma_64f_LS2, FROB_MA_ARGS_L);
}
VormStatus n8_vormFrobNorm_ma_32f_P(FROB_MA_PARAMS_P(float))
{
    return checked<21600>(frobNormMaP(FROB_MA_ARGS_P), n8_ownOMP_vormFrobNorm_ma_32f_P, n8_ownvormFrobNorm_ma_32f_P,
                          FROB_MA_ARGS_P);
}
VormStatus n8_vormFrobNorm_ma_64f_P(FROB_MA_PARAMS_P(double))
{
    return checked<21600>(frobNormMaP(FROB_MA_ARGS_P), n8_ownOMP_vormFrobNorm_ma_64f_P, n8_ownvormFrobNorm_ma_64f_P,
                          FROB_MA_ARGS_P);
}

VormStatus n8_ownvormFrobNorm_ma_32f_S2(FROB_MA_PARAMS(float))
{
    return anyStrideKernel<Norm>(frobNormMa(FROB_MA_ARGS));
}
VormStatus n8_ownvormFrobNorm_ma_64f_S2(FROB_MA_PARAMS(double))
{
    return anyStrideKernel<Norm>(frobNormMa(FROB_MA_ARGS));
}
VormStatus n8_ownvormFrobNorm_ma_32f_LS2(FROB_MA_PARAMS_L(float))
{
    return anyStrideKernel<Norm>(frobNormMaL(FROB_MA_ARGS_L));
}
VormStatus n8_ownvormFrobNorm_ma_64f_LS2(FROB_MA_PARAMS_L(double))
{
    return anyStrideKernel<Norm>(frobNormMaL(FROB_MA_ARGS_L));
}
VormStatus n8_ownvormFrobNorm_ma_32f_P(FROB_MA_PARAMS_P(float))
{
    return pointerKernel<Norm>(frobNormMaP(FROB_MA_ARGS_P));
}
VormStatus n8_ownvormFrobNorm_ma_64f_P(FROB_MA_PARAMS_P(double))
{
    return pointerKernel<Norm>(frobNormMaP(FROB_MA_ARGS_P));
}
}
