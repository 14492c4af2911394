// vormSub_cv: the kernel for contiguous elements, single precision.

#include "elementwise/calls.hpp"
#include "elementwise/shapes/vc.hpp"

using namespace vorm;
using namespace vorm::elementwise;

extern "C" {

VormStatus n8_ownvormSub_cv_32f(VC_PARAMS(float)) { return contiguousKernel<SubFrom>(vc(VC_ARGS)); }
}
