// vormSub_vv: the kernel for contiguous elements, double precision.

#include "elementwise/array_kernels.hpp"
#include "elementwise/vv.hpp"

using namespace vorm;
using namespace vorm::elementwise;

extern "C" {

VormStatus n8_ownvormSub_vv_64f(VV_PARAMS(double)) { return contiguousKernel<Sub>(vv(VV_ARGS)); }
}
