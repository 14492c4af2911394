// vormSub_vv: public layers, and the kernels for elements anywhere.

#include "elementwise/vv.hpp"

using namespace vorm;

extern "C" {

VormStatus n8_vormSub_vv_32f(VV_PARAMS(float))
{
    return vvChecked(n8_ownvormSub_vv_32f, n8_ownvormSub_vv_32f_S2, VV_ARGS);
}
VormStatus n8_vormSub_vv_64f(VV_PARAMS(double))
{
    return vvChecked(n8_ownvormSub_vv_64f, n8_ownvormSub_vv_64f_S2, VV_ARGS);
}
VormStatus n8_vormSub_vv_32f_P(VV_PARAMS_P(float)) { return vvCheckedP(n8_ownvormSub_vv_32f_P, VV_ARGS_P); }
VormStatus n8_vormSub_vv_64f_P(VV_PARAMS_P(double)) { return vvCheckedP(n8_ownvormSub_vv_64f_P, VV_ARGS_P); }

VormStatus n8_ownvormSub_vv_32f_S2(VV_PARAMS(float)) { return vvAnyStride<Sub>(VV_ARGS); }
VormStatus n8_ownvormSub_vv_64f_S2(VV_PARAMS(double)) { return vvAnyStride<Sub>(VV_ARGS); }
VormStatus n8_ownvormSub_vv_32f_P(VV_PARAMS_P(float)) { return vvPointers<Sub>(VV_ARGS_P); }
VormStatus n8_ownvormSub_vv_64f_P(VV_PARAMS_P(double)) { return vvPointers<Sub>(VV_ARGS_P); }
}
