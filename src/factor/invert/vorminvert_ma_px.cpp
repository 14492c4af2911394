// vormInvert_ma: public layers, and the kernels for elements anywhere.

#include "factor/invert/invert_calls.hpp"
#include "factor/invert/invert_public.hpp"

using namespace vorm;
using namespace vorm::factor;

extern "C" {

VormStatus n8_vormInvert_ma_32f(INVERT_MA_PARAMS(float))
{
    return checkedInverse<3600, 2500>(invertMa(INVERT_MA_ARGS), n8_ownOMP_vormInvert_ma_32f, n8_ownvormInvert_ma_32f,
                                      n8_ownvormInvert_ma_32f_S2, INVERT_MA_ARGS);
}
VormStatus n8_vormInvert_ma_64f(INVERT_MA_PARAMS(double))
{
    return checkedInverse<2500>(invertMa(INVERT_MA_ARGS), n8_ownOMP_vormInvert_ma_64f, n8_ownvormInvert_ma_64f,
                                n8_ownvormInvert_ma_64f_S2, INVERT_MA_ARGS);
}
VormStatus n8_vormInvert_ma_32f_L(INVERT_MA_PARAMS_L(float))
{
    return checkedInverse<2500>(invertMaL(INVERT_MA_ARGS_L), n8_ownOMP_vormInvert_ma_32f_L, n8_ownvormInvert_ma_32f_L,
                                n8_ownvormInvert_ma_32f_LS2, INVERT_MA_ARGS_L);
}
VormStatus n8_vormInvert_ma_64f_L(INVERT_MA_PARAMS_L(double))
{
    return checkedInverse<2500>(invertMaL(INVERT_MA_ARGS_L), n8_ownOMP_vormInvert_ma_64f_L, n8_ownvormInvert_ma_64f_L,
                                n8_ownvormInvert_ma_64f_LS2, INVERT_MA_ARGS_L);
}
VormStatus n8_vormInvert_ma_32f_P(INVERT_MA_PARAMS_P(float))
{
    return checkedInverse<2500>(invertMaP(INVERT_MA_ARGS_P), n8_ownOMP_vormInvert_ma_32f_P, n8_ownvormInvert_ma_32f_P,
                                INVERT_MA_ARGS_P);
}
VormStatus n8_vormInvert_ma_64f_P(INVERT_MA_PARAMS_P(double))
{
    return checkedInverse<2500>(invertMaP(INVERT_MA_ARGS_P), n8_ownOMP_vormInvert_ma_64f_P, n8_ownvormInvert_ma_64f_P,
                                INVERT_MA_ARGS_P);
}

VormStatus n8_ownvormInvert_ma_32f_S2(INVERT_MA_PARAMS(float)) { return anyStrideKernel(invertMa(INVERT_MA_ARGS)); }
VormStatus n8_ownvormInvert_ma_64f_S2(INVERT_MA_PARAMS(double)) { return anyStrideKernel(invertMa(INVERT_MA_ARGS)); }
VormStatus n8_ownvormInvert_ma_32f_LS2(INVERT_MA_PARAMS_L(float))
{
    return anyStrideKernel(invertMaL(INVERT_MA_ARGS_L));
}
VormStatus n8_ownvormInvert_ma_64f_LS2(INVERT_MA_PARAMS_L(double))
{
    return anyStrideKernel(invertMaL(INVERT_MA_ARGS_L));
}
VormStatus n8_ownvormInvert_ma_32f_P(INVERT_MA_PARAMS_P(float)) { return pointerKernel(invertMaP(INVERT_MA_ARGS_P)); }
VormStatus n8_ownvormInvert_ma_64f_P(INVERT_MA_PARAMS_P(double)) { return pointerKernel(invertMaP(INVERT_MA_ARGS_P)); }
}
