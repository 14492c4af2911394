// vormAdd_vc: public layers, and the kernels for elements anywhere.

#include "elementwise/vc.hpp"

using namespace vorm;

extern "C" {

VormStatus n8_vormAdd_vc_32f(VC_PARAMS(float))
{
    return vcChecked(n8_ownvormAdd_vc_32f, n8_ownvormAdd_vc_32f_S2, VC_ARGS);
}
VormStatus n8_vormAdd_vc_64f(VC_PARAMS(double))
{
    return vcChecked(n8_ownvormAdd_vc_64f, n8_ownvormAdd_vc_64f_S2, VC_ARGS);
}
VormStatus n8_vormAdd_vc_32f_P(VC_PARAMS_P(float)) { return vcCheckedP(n8_ownvormAdd_vc_32f_P, VC_ARGS_P); }
VormStatus n8_vormAdd_vc_64f_P(VC_PARAMS_P(double)) { return vcCheckedP(n8_ownvormAdd_vc_64f_P, VC_ARGS_P); }

VormStatus n8_ownvormAdd_vc_32f_S2(VC_PARAMS(float)) { return vcAnyStride<Add>(VC_ARGS); }
VormStatus n8_ownvormAdd_vc_64f_S2(VC_PARAMS(double)) { return vcAnyStride<Add>(VC_ARGS); }
VormStatus n8_ownvormAdd_vc_32f_P(VC_PARAMS_P(float)) { return vcPointers<Add>(VC_ARGS_P); }
VormStatus n8_ownvormAdd_vc_64f_P(VC_PARAMS_P(double)) { return vcPointers<Add>(VC_ARGS_P); }
}
