// vormTrace_m: the kernel for contiguous elements, double precision.

#include "measures/calls.hpp"
#include "measures/trace/trace.hpp"

using namespace vorm;
using namespace vorm::measures;

extern "C" {

VormStatus n8_ownvormTrace_m_64f(TRACE_M_PARAMS(double)) { return traceKernel(traceM(TRACE_M_ARGS)); }
}
