// vormSaxpy_vav: the kernels for contiguous elements, double precision.

#include "elementwise/calls.hpp"
#include "elementwise/shapes/saxpy_vav.hpp"

using namespace vorm;
using namespace vorm::elementwise;

extern "C" {

VormStatus n8_ownvormSaxpy_vav_64f(SAXPY_VAV_PARAMS(double))
{
    return contiguousKernel<Saxpy<double>>(saxpyVav(SAXPY_VAV_ARGS));
}
VormStatus n8_ownvormSaxpy_vav_64f_L(SAXPY_VAV_PARAMS_L(double))
{
    return contiguousKernel<Saxpy<double>>(saxpyVavL(SAXPY_VAV_ARGS_L));
}
}
