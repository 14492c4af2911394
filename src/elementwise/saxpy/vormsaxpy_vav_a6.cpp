// vormSaxpy_vav: the kernels for contiguous elements, single precision.

#include "elementwise/calls.hpp"
#include "elementwise/shapes/saxpy_vav.hpp"

using namespace vorm;
using namespace vorm::elementwise;

extern "C" {

VormStatus n8_ownvormSaxpy_vav_32f(SAXPY_VAV_PARAMS(float))
{
    return contiguousKernel<Saxpy<float>>(saxpyVav(SAXPY_VAV_ARGS));
}
VormStatus n8_ownvormSaxpy_vav_32f_L(SAXPY_VAV_PARAMS_L(float))
{
    return contiguousKernel<Saxpy<float>>(saxpyVavL(SAXPY_VAV_ARGS_L));
}
}
