// vormTrace_ma: the kernels for contiguous elements, double precision.

#include "measures/calls.hpp"
#include "measures/trace/trace.hpp"

using namespace vorm;
using namespace vorm::measures;

extern "C" {

VormStatus n8_ownvormTrace_ma_64f(TRACE_MA_PARAMS(double)) { return traceKernel(traceMa(TRACE_MA_ARGS)); }
VormStatus n8_ownvormTrace_ma_64f_L(TRACE_MA_PARAMS_L(double)) { return traceKernel(traceMaL(TRACE_MA_ARGS_L)); }
}
