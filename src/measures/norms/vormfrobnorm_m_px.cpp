// vormFrobNorm_m: public layers, and the kernels for elements anywhere.

#include "measures/calls.hpp"
#include "measures/norms/frobnorm.hpp"

using namespace vorm;
using namespace vorm::measures;

extern "C" {

VormStatus n8_vormFrobNorm_m_32f(FROB_M_PARAMS(float))
{
    return checked(frobNormM(FROB_M_ARGS), n8_ownvormFrobNorm_m_32f, n8_ownvormFrobNorm_m_32f_S2, FROB_M_ARGS);
}
VormStatus n8_vormFrobNorm_m_64f(FROB_M_PARAMS(double))
{
    return checked(frobNormM(FROB_M_ARGS), n8_ownvormFrobNorm_m_64f, n8_ownvormFrobNorm_m_64f_S2, FROB_M_ARGS);
}
VormStatus n8_vormFrobNorm_m_32f_P(FROB_M_PARAMS_P(float))
{
    return checked(frobNormMP(FROB_M_ARGS_P), n8_ownvormFrobNorm_m_32f_P, FROB_M_ARGS_P);
}
VormStatus n8_vormFrobNorm_m_64f_P(FROB_M_PARAMS_P(double))
{
    return checked(frobNormMP(FROB_M_ARGS_P), n8_ownvormFrobNorm_m_64f_P, FROB_M_ARGS_P);
}

VormStatus n8_ownvormFrobNorm_m_32f_S2(FROB_M_PARAMS(float)) { return anyStrideKernel<Norm>(frobNormM(FROB_M_ARGS)); }
VormStatus n8_ownvormFrobNorm_m_64f_S2(FROB_M_PARAMS(double)) { return anyStrideKernel<Norm>(frobNormM(FROB_M_ARGS)); }
VormStatus n8_ownvormFrobNorm_m_32f_P(FROB_M_PARAMS_P(float))
{
    return anyStrideKernel<Norm>(frobNormMP(FROB_M_ARGS_P));
}
VormStatus n8_ownvormFrobNorm_m_64f_P(FROB_M_PARAMS_P(double))
{
    return anyStrideKernel<Norm>(frobNormMP(FROB_M_ARGS_P));
}
}
