// vormSaxpy_vv: the kernel for contiguous elements, double precision.

#include "elementwise/calls.hpp"
#include "elementwise/shapes/saxpy_vv.hpp"

using namespace vorm;
using namespace vorm::elementwise;

extern "C" {

VormStatus n8_ownvormSaxpy_vv_64f(SAXPY_VV_PARAMS(double))
{
    return contiguousKernel<Saxpy<double>>(saxpyVv(SAXPY_VV_ARGS));
}
}
