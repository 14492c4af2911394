// vormTrace_m: the kernel for contiguous elements, single precision.

#include "measures/calls.hpp"
#include "measures/trace/trace.hpp"

using namespace vorm;
using namespace vorm::measures;

extern "C" {

VormStatus n8_ownvormTrace_m_32f(TRACE_M_PARAMS(float)) { return traceKernel(traceM(TRACE_M_ARGS)); }
}
