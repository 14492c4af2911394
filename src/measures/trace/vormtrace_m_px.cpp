// vormTrace_m: public layers, and the kernels for elements anywhere.

#include "measures/calls.hpp"
#include "measures/trace/trace.hpp"

using namespace vorm;
using namespace vorm::measures;

extern "C" {

VormStatus n8_vormTrace_m_32f(TRACE_M_PARAMS(float))
{
    return checked(traceM(TRACE_M_ARGS), n8_ownvormTrace_m_32f, n8_ownvormTrace_m_32f_S2, TRACE_M_ARGS);
}
VormStatus n8_vormTrace_m_64f(TRACE_M_PARAMS(double))
{
    return checked(traceM(TRACE_M_ARGS), n8_ownvormTrace_m_64f, n8_ownvormTrace_m_64f_S2, TRACE_M_ARGS);
}
VormStatus n8_vormTrace_m_32f_P(TRACE_M_PARAMS_P(float))
{
    return checked(traceMP(TRACE_M_ARGS_P), n8_ownvormTrace_m_32f_P, TRACE_M_ARGS_P);
}
VormStatus n8_vormTrace_m_64f_P(TRACE_M_PARAMS_P(double))
{
    return checked(traceMP(TRACE_M_ARGS_P), n8_ownvormTrace_m_64f_P, TRACE_M_ARGS_P);
}

VormStatus n8_ownvormTrace_m_32f_S2(TRACE_M_PARAMS(float)) { return traceKernel(traceM(TRACE_M_ARGS)); }
VormStatus n8_ownvormTrace_m_64f_S2(TRACE_M_PARAMS(double)) { return traceKernel(traceM(TRACE_M_ARGS)); }
VormStatus n8_ownvormTrace_m_32f_P(TRACE_M_PARAMS_P(float)) { return traceKernel(traceMP(TRACE_M_ARGS_P)); }
VormStatus n8_ownvormTrace_m_64f_P(TRACE_M_PARAMS_P(double)) { return traceKernel(traceMP(TRACE_M_ARGS_P)); }
}
