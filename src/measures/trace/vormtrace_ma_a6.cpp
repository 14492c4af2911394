// vormTrace_ma: the kernels for contiguous elements, single precision.

#include "measures/calls.hpp"
#include "measures/trace/trace.hpp"

using namespace vorm;
using namespace vorm::measures;

extern "C" {

VormStatus n8_ownvormTrace_ma_32f(TRACE_MA_PARAMS(float)) { return traceKernel(traceMa(TRACE_MA_ARGS)); }
VormStatus n8_ownvormTrace_ma_32f_L(TRACE_MA_PARAMS_L(float)) { return traceKernel(traceMaL(TRACE_MA_ARGS_L)); }
}
