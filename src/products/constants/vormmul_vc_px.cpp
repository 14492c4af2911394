// vormMul_vc: public layers, and the kernels for elements anywhere.

#include "elementwise/calls.hpp"
#include "products/constants/shapes.hpp"

using namespace vorm;
using namespace vorm::elementwise;

extern "C" {

VormStatus n8_vormMul_vc_32f(VC_PARAMS(float))
{
    return checked(vc(VC_ARGS), n8_ownvormMul_vc_32f, n8_ownvormMul_vc_32f_S2, VC_ARGS);
}
VormStatus n8_vormMul_vc_64f(VC_PARAMS(double))
{
    return checked(vc(VC_ARGS), n8_ownvormMul_vc_64f, n8_ownvormMul_vc_64f_S2, VC_ARGS);
}
VormStatus n8_vormMul_vc_32f_P(VC_PARAMS_P(float))
{
    return checked(vcP(VC_ARGS_P), n8_ownvormMul_vc_32f_P, VC_ARGS_P);
}
VormStatus n8_vormMul_vc_64f_P(VC_PARAMS_P(double))
{
    return checked(vcP(VC_ARGS_P), n8_ownvormMul_vc_64f_P, VC_ARGS_P);
}

VormStatus n8_ownvormMul_vc_32f_S2(VC_PARAMS(float)) { return anyStrideKernel<Mul>(vc(VC_ARGS)); }
VormStatus n8_ownvormMul_vc_64f_S2(VC_PARAMS(double)) { return anyStrideKernel<Mul>(vc(VC_ARGS)); }
VormStatus n8_ownvormMul_vc_32f_P(VC_PARAMS_P(float)) { return anyStrideKernel<Mul>(vcP(VC_ARGS_P)); }
VormStatus n8_ownvormMul_vc_64f_P(VC_PARAMS_P(double)) { return anyStrideKernel<Mul>(vcP(VC_ARGS_P)); }
}
