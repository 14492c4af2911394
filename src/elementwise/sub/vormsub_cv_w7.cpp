// vormSub_cv: the kernel for contiguous elements, double precision.

#include "elementwise/calls.hpp"
#include "elementwise/shapes/vc.hpp"

using namespace vorm;
using namespace vorm::elementwise;

extern "C" {

VormStatus n8_ownvormSub_cv_64f(VC_PARAMS(double)) { return contiguousKernel<SubFrom>(vc(VC_ARGS)); }
}
