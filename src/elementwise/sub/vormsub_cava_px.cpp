// vormSub_cava: public layers, and the kernels for elements anywhere.

#include "elementwise/vaca.hpp"

using namespace vorm;

extern "C" {

VormStatus n8_vormSub_cava_32f(VACA_PARAMS(float))
{
    return vacaChecked<4800>(n8_ownOMP_vormSub_cava_32f, n8_ownvormSub_cava_32f, n8_ownvormSub_cava_32f_S2, VACA_ARGS);
}
VormStatus n8_vormSub_cava_64f(VACA_PARAMS(double))
{
    return vacaChecked<1400>(n8_ownOMP_vormSub_cava_64f, n8_ownvormSub_cava_64f, n8_ownvormSub_cava_64f_S2, VACA_ARGS);
}
VormStatus n8_vormSub_cava_32f_L(VACA_PARAMS_L(float))
{
    return vacaCheckedL<2500>(n8_ownOMP_vormSub_cava_32f_L, n8_ownvormSub_cava_32f_L, n8_ownvormSub_cava_32f_LS2,
                              VACA_ARGS_L);
}
VormStatus n8_vormSub_cava_64f_L(VACA_PARAMS_L(double))
{
    return vacaCheckedL<2500>(n8_ownOMP_vormSub_cava_64f_L, n8_ownvormSub_cava_64f_L, n8_ownvormSub_cava_64f_LS2,
                              VACA_ARGS_L);
}
VormStatus n8_vormSub_cava_32f_P(VACA_PARAMS_P(float))
{
    return vacaCheckedP<1500>(n8_ownOMP_vormSub_cava_32f_P, n8_ownvormSub_cava_32f_P, VACA_ARGS_P);
}
VormStatus n8_vormSub_cava_64f_P(VACA_PARAMS_P(double))
{
    return vacaCheckedP<1500>(n8_ownOMP_vormSub_cava_64f_P, n8_ownvormSub_cava_64f_P, VACA_ARGS_P);
}

VormStatus n8_ownvormSub_cava_32f_S2(VACA_PARAMS(float)) { return vacaAnyStride<SubFrom>(VACA_ARGS); }
VormStatus n8_ownvormSub_cava_64f_S2(VACA_PARAMS(double)) { return vacaAnyStride<SubFrom>(VACA_ARGS); }
VormStatus n8_ownvormSub_cava_32f_LS2(VACA_PARAMS_L(float)) { return vacaAnyStrideL<SubFrom>(VACA_ARGS_L); }
VormStatus n8_ownvormSub_cava_64f_LS2(VACA_PARAMS_L(double)) { return vacaAnyStrideL<SubFrom>(VACA_ARGS_L); }
VormStatus n8_ownvormSub_cava_32f_P(VACA_PARAMS_P(float)) { return vacaPointers<SubFrom>(VACA_ARGS_P); }
VormStatus n8_ownvormSub_cava_64f_P(VACA_PARAMS_P(double)) { return vacaPointers<SubFrom>(VACA_ARGS_P); }
}
