// vormTrace_ma: public layers, and the kernels for elements anywhere.

#include "measures/calls.hpp"
#include "measures/trace/trace.hpp"

using namespace vorm;
using namespace vorm::measures;

extern "C" {

VormStatus n8_vormTrace_ma_32f(TRACE_MA_PARAMS(float))
{
    return checked<10800>(traceMa(TRACE_MA_ARGS), n8_ownOMP_vormTrace_ma_32f, n8_ownvormTrace_ma_32f,
                          n8_ownvormTrace_ma_32f_S2, TRACE_MA_ARGS);
}
VormStatus n8_vormTrace_ma_64f(TRACE_MA_PARAMS(double))
{
    return checked<10800>(traceMa(TRACE_MA_ARGS), n8_ownOMP_vormTrace_ma_64f, n8_ownvormTrace_ma_64f,
                          n8_ownvormTrace_ma_64f_S2, TRACE_MA_ARGS);
}
VormStatus n8_vormTrace_ma_32f_L(TRACE_MA_PARAMS_L(float))
{
    return checked<10800>(traceMaL(TRACE_MA_ARGS_L), n8_ownOMP_vormTrace_ma_32f_L, n8_ownvormTrace_ma_32f_L,
                          n8_ownvormTrace_ma_32f_LS2, TRACE_MA_ARGS_L);
}
VormStatus n8_vormTrace_ma_64f_L(TRACE_MA_PARAMS_L(double))
{
    return checked<10800>(traceMaL(TRACE_MA_ARGS_L), n8_ownOMP_vormTrace_ma_64f_L, n8_ownvormTrace_ma_64f_L,
                          n8_ownvormTrace_ma_64f_LS2, TRACE_MA_ARGS_L);
}
VormStatus n8_vormTrace_ma_32f_P(TRACE_MA_PARAMS_P(float))
{
    return checked<21600>(traceMaP(TRACE_MA_ARGS_P), n8_ownOMP_vormTrace_ma_32f_P, n8_ownvormTrace_ma_32f_P,
                          TRACE_MA_ARGS_P);
}
VormStatus n8_vormTrace_ma_64f_P(TRACE_MA_PARAMS_P(double))
{
    return checked<21600>(traceMaP(TRACE_MA_ARGS_P), n8_ownOMP_vormTrace_ma_64f_P, n8_ownvormTrace_ma_64f_P,
                          TRACE_MA_ARGS_P);
}

VormStatus n8_ownvormTrace_ma_32f_S2(TRACE_MA_PARAMS(float)) { return traceKernel(traceMa(TRACE_MA_ARGS)); }
VormStatus n8_ownvormTrace_ma_64f_S2(TRACE_MA_PARAMS(double)) { return traceKernel(traceMa(TRACE_MA_ARGS)); }
VormStatus n8_ownvormTrace_ma_32f_LS2(TRACE_MA_PARAMS_L(float)) { return traceKernel(traceMaL(TRACE_MA_ARGS_L)); }
VormStatus n8_ownvormTrace_ma_64f_LS2(TRACE_MA_PARAMS_L(double)) { return traceKernel(traceMaL(TRACE_MA_ARGS_L)); }
VormStatus n8_ownvormTrace_ma_32f_P(TRACE_MA_PARAMS_P(float)) { return traceKernel(traceMaP(TRACE_MA_ARGS_P)); }
VormStatus n8_ownvormTrace_ma_64f_P(TRACE_MA_PARAMS_P(double)) { return traceKernel(traceMaP(TRACE_MA_ARGS_P)); }
}
