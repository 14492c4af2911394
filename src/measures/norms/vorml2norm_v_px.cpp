// vormL2Norm_v: public layers, and the kernels for elements anywhere.

#include "measures/calls.hpp"
#include "measures/norms/l2norm.hpp"

using namespace vorm;
using namespace vorm::measures;

extern "C" {

VormStatus n8_vormL2Norm_v_32f(L2_V_PARAMS(float))
{
    return checked(l2NormV(L2_V_ARGS), n8_ownvormL2Norm_v_32f, n8_ownvormL2Norm_v_32f_S2, L2_V_ARGS);
}
VormStatus n8_vormL2Norm_v_64f(L2_V_PARAMS(double))
{
    return checked(l2NormV(L2_V_ARGS), n8_ownvormL2Norm_v_64f, n8_ownvormL2Norm_v_64f_S2, L2_V_ARGS);
}
VormStatus n8_vormL2Norm_v_32f_P(L2_V_PARAMS_P(float))
{
    return checked(l2NormVP(L2_V_ARGS_P), n8_ownvormL2Norm_v_32f_P, L2_V_ARGS_P);
}
VormStatus n8_vormL2Norm_v_64f_P(L2_V_PARAMS_P(double))
{
    return checked(l2NormVP(L2_V_ARGS_P), n8_ownvormL2Norm_v_64f_P, L2_V_ARGS_P);
}

VormStatus n8_ownvormL2Norm_v_32f_S2(L2_V_PARAMS(float)) { return anyStrideKernel<Norm>(l2NormV(L2_V_ARGS)); }
VormStatus n8_ownvormL2Norm_v_64f_S2(L2_V_PARAMS(double)) { return anyStrideKernel<Norm>(l2NormV(L2_V_ARGS)); }
VormStatus n8_ownvormL2Norm_v_32f_P(L2_V_PARAMS_P(float)) { return anyStrideKernel<Norm>(l2NormVP(L2_V_ARGS_P)); }
VormStatus n8_ownvormL2Norm_v_64f_P(L2_V_PARAMS_P(double)) { return anyStrideKernel<Norm>(l2NormVP(L2_V_ARGS_P)); }
}
