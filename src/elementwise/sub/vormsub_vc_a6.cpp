// vormSub_vc: the kernel for contiguous elements, single precision.

#include "elementwise/array_kernels.hpp"
#include "elementwise/vc.hpp"

using namespace vorm;
using namespace vorm::elementwise;

extern "C" {

VormStatus n8_ownvormSub_vc_32f(VC_PARAMS(float)) { return contiguousKernel<Sub>(vc(VC_ARGS)); }
}
