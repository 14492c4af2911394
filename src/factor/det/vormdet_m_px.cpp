// vormDet_m: public layers, and the kernels for elements anywhere.

#include "factor/det/det_calls.hpp"

using namespace vorm;
using namespace vorm::factor;

extern "C" {

VormStatus n8_vormDet_m_32f(DET_M_PARAMS(float))
{
    return checked(detM(DET_M_ARGS), n8_ownvormDet_m_32f, n8_ownvormDet_m_32f_S2, DET_M_ARGS);
}
VormStatus n8_vormDet_m_64f(DET_M_PARAMS(double))
{
    return checked(detM(DET_M_ARGS), n8_ownvormDet_m_64f, n8_ownvormDet_m_64f_S2, DET_M_ARGS);
}
VormStatus n8_vormDet_m_32f_P(DET_M_PARAMS_P(float))
{
    return checked(detMP(DET_M_ARGS_P), n8_ownvormDet_m_32f_P, DET_M_ARGS_P);
}
VormStatus n8_vormDet_m_64f_P(DET_M_PARAMS_P(double))
{
    return checked(detMP(DET_M_ARGS_P), n8_ownvormDet_m_64f_P, DET_M_ARGS_P);
}

VormStatus n8_ownvormDet_m_32f_S2(DET_M_PARAMS(float)) { return anyStrideKernel(detM(DET_M_ARGS)); }
VormStatus n8_ownvormDet_m_64f_S2(DET_M_PARAMS(double)) { return anyStrideKernel(detM(DET_M_ARGS)); }
VormStatus n8_ownvormDet_m_32f_P(DET_M_PARAMS_P(float)) { return anyStrideKernel(detMP(DET_M_ARGS_P)); }
VormStatus n8_ownvormDet_m_64f_P(DET_M_PARAMS_P(double)) { return anyStrideKernel(detMP(DET_M_ARGS_P)); }
}
