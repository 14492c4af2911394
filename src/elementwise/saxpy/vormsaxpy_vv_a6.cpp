// vormSaxpy_vv: the kernel for contiguous elements, single precision.

#include "elementwise/calls.hpp"
#include "elementwise/shapes/saxpy_vv.hpp"

using namespace vorm;
using namespace vorm::elementwise;

extern "C" {

VormStatus n8_ownvormSaxpy_vv_32f(SAXPY_VV_PARAMS(float))
{
    return contiguousKernel<Saxpy<float>>(saxpyVv(SAXPY_VV_ARGS));
}
}
