// vormInvert_m: public layers, and the kernels for elements anywhere.

#include "factor/invert/invert_calls.hpp"
#include "factor/invert/invert_public.hpp"

using namespace vorm;
using namespace vorm::factor;

extern "C" {

VormStatus n8_vormInvert_m_32f(INVERT_M_PARAMS(float))
{
    return checkedInverse(invertM(INVERT_M_ARGS), n8_ownvormInvert_m_32f, n8_ownvormInvert_m_32f_S2, INVERT_M_ARGS);
}
VormStatus n8_vormInvert_m_64f(INVERT_M_PARAMS(double))
{
    return checkedInverse(invertM(INVERT_M_ARGS), n8_ownvormInvert_m_64f, n8_ownvormInvert_m_64f_S2, INVERT_M_ARGS);
}
VormStatus n8_vormInvert_m_32f_P(INVERT_M_PARAMS_P(float))
{
    return checkedInverse(invertMP(INVERT_M_ARGS_P), n8_ownvormInvert_m_32f_P, INVERT_M_ARGS_P);
}
VormStatus n8_vormInvert_m_64f_P(INVERT_M_PARAMS_P(double))
{
    return checkedInverse(invertMP(INVERT_M_ARGS_P), n8_ownvormInvert_m_64f_P, INVERT_M_ARGS_P);
}

VormStatus n8_ownvormInvert_m_32f_S2(INVERT_M_PARAMS(float)) { return anyStrideKernel(invertM(INVERT_M_ARGS)); }
VormStatus n8_ownvormInvert_m_64f_S2(INVERT_M_PARAMS(double)) { return anyStrideKernel(invertM(INVERT_M_ARGS)); }
VormStatus n8_ownvormInvert_m_32f_P(INVERT_M_PARAMS_P(float)) { return anyStrideKernel(invertMP(INVERT_M_ARGS_P)); }
VormStatus n8_ownvormInvert_m_64f_P(INVERT_M_PARAMS_P(double)) { return anyStrideKernel(invertMP(INVERT_M_ARGS_P)); }
}
