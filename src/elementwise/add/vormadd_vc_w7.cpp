// vormAdd_vc: the kernel for contiguous elements, double precision.

#include "elementwise/array_kernels.hpp"
#include "elementwise/vc.hpp"

using namespace vorm;
using namespace vorm::elementwise;

extern "C" {

VormStatus n8_ownvormAdd_vc_64f(VC_PARAMS(double)) { return contiguousKernel<Add>(vc(VC_ARGS)); }
}
