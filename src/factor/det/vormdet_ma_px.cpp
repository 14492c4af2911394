// vormDet_ma: public layers, and the kernels for elements anywhere.

#include "factor/det/det_calls.hpp"

using namespace vorm;
using namespace vorm::factor;

extern "C" {

VormStatus n8_vormDet_ma_32f(DET_MA_PARAMS(float))
{
    return checked<14400>(detMa(DET_MA_ARGS), n8_ownOMP_vormDet_ma_32f, n8_ownvormDet_ma_32f, n8_ownvormDet_ma_32f_S2,
                          DET_MA_ARGS);
}
VormStatus n8_vormDet_ma_64f(DET_MA_PARAMS(double))
{
    return checked<14400>(detMa(DET_MA_ARGS), n8_ownOMP_vormDet_ma_64f, n8_ownvormDet_ma_64f, n8_ownvormDet_ma_64f_S2,
                          DET_MA_ARGS);
}
VormStatus n8_vormDet_ma_32f_L(DET_MA_PARAMS_L(float))
{
    return checked<14400>(detMaL(DET_MA_ARGS_L), n8_ownOMP_vormDet_ma_32f_L, n8_ownvormDet_ma_32f_L,
                          n8_ownvormDet_ma_32f_LS2, DET_MA_ARGS_L);
}
VormStatus n8_vormDet_ma_64f_L(DET_MA_PARAMS_L(double))
{
    return checked<14400>(detMaL(DET_MA_ARGS_L), n8_ownOMP_vormDet_ma_64f_L, n8_ownvormDet_ma_64f_L,
                          n8_ownvormDet_ma_64f_LS2, DET_MA_ARGS_L);
}
VormStatus n8_vormDet_ma_32f_P(DET_MA_PARAMS_P(float))
{
    return checked<14400>(detMaP(DET_MA_ARGS_P), n8_ownOMP_vormDet_ma_32f_P, n8_ownvormDet_ma_32f_P, DET_MA_ARGS_P);
}
VormStatus n8_vormDet_ma_64f_P(DET_MA_PARAMS_P(double))
{
    return checked<14400>(detMaP(DET_MA_ARGS_P), n8_ownOMP_vormDet_ma_64f_P, n8_ownvormDet_ma_64f_P, DET_MA_ARGS_P);
}

VormStatus n8_ownvormDet_ma_32f_S2(DET_MA_PARAMS(float)) { return anyStrideKernel(detMa(DET_MA_ARGS)); }
VormStatus n8_ownvormDet_ma_64f_S2(DET_MA_PARAMS(double)) { return anyStrideKernel(detMa(DET_MA_ARGS)); }
VormStatus n8_ownvormDet_ma_32f_LS2(DET_MA_PARAMS_L(float)) { return anyStrideKernel(detMaL(DET_MA_ARGS_L)); }
VormStatus n8_ownvormDet_ma_64f_LS2(DET_MA_PARAMS_L(double)) { return anyStrideKernel(detMaL(DET_MA_ARGS_L)); }
VormStatus n8_ownvormDet_ma_32f_P(DET_MA_PARAMS_P(float)) { return pointerKernel(detMaP(DET_MA_ARGS_P)); }
VormStatus n8_ownvormDet_ma_64f_P(DET_MA_PARAMS_P(double)) { return pointerKernel(detMaP(DET_MA_ARGS_P)); }
}
