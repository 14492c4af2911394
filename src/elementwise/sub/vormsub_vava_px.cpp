// vormSub_vava: public layers, and the kernels for elements anywhere.

#include "elementwise/vava.hpp"

using namespace vorm;

extern "C" {

VormStatus n8_vormSub_vava_32f(VAVA_PARAMS(float))
{
    return vavaChecked<4800>(n8_ownOMP_vormSub_vava_32f, n8_ownvormSub_vava_32f, n8_ownvormSub_vava_32f_S2, VAVA_ARGS);
}
VormStatus n8_vormSub_vava_64f(VAVA_PARAMS(double))
{
    return vavaChecked<1400>(n8_ownOMP_vormSub_vava_64f, n8_ownvormSub_vava_64f, n8_ownvormSub_vava_64f_S2, VAVA_ARGS);
}
VormStatus n8_vormSub_vava_32f_L(VAVA_PARAMS_L(float))
{
    return vavaCheckedL<2500>(n8_ownOMP_vormSub_vava_32f_L, n8_ownvormSub_vava_32f_L, n8_ownvormSub_vava_32f_LS2,
                              VAVA_ARGS_L);
}
VormStatus n8_vormSub_vava_64f_L(VAVA_PARAMS_L(double))
{
    return vavaCheckedL<2500>(n8_ownOMP_vormSub_vava_64f_L, n8_ownvormSub_vava_64f_L, n8_ownvormSub_vava_64f_LS2,
                              VAVA_ARGS_L);
}
VormStatus n8_vormSub_vava_32f_P(VAVA_PARAMS_P(float))
{
    return vavaCheckedP<1500>(n8_ownOMP_vormSub_vava_32f_P, n8_ownvormSub_vava_32f_P, VAVA_ARGS_P);
}
VormStatus n8_vormSub_vava_64f_P(VAVA_PARAMS_P(double))
{
    return vavaCheckedP<1500>(n8_ownOMP_vormSub_vava_64f_P, n8_ownvormSub_vava_64f_P, VAVA_ARGS_P);
}

VormStatus n8_ownvormSub_vava_32f_S2(VAVA_PARAMS(float)) { return vavaAnyStride<Sub>(VAVA_ARGS); }
VormStatus n8_ownvormSub_vava_64f_S2(VAVA_PARAMS(double)) { return vavaAnyStride<Sub>(VAVA_ARGS); }
VormStatus n8_ownvormSub_vava_32f_LS2(VAVA_PARAMS_L(float))
{
    return vavaEachSingle(n8_ownvormSub_vv_32f_S2, VAVA_ARGS_L);
}
VormStatus n8_ownvormSub_vava_64f_LS2(VAVA_PARAMS_L(double))
{
    return vavaEachSingle(n8_ownvormSub_vv_64f_S2, VAVA_ARGS_L);
}
VormStatus n8_ownvormSub_vava_32f_P(VAVA_PARAMS_P(float)) { return vavaPointers<Sub>(VAVA_ARGS_P); }
VormStatus n8_ownvormSub_vava_64f_P(VAVA_PARAMS_P(double)) { return vavaPointers<Sub>(VAVA_ARGS_P); }
}
