// vormSaxpy_vava: the kernels for contiguous elements, single precision.

#include "elementwise/calls.hpp"
#include "elementwise/shapes/saxpy_vava.hpp"

using namespace vorm;
using namespace vorm::elementwise;

extern "C" {

VormStatus n8_ownvormSaxpy_vava_32f(SAXPY_VAVA_PARAMS(float))
{
    return contiguousKernel<Saxpy<float>>(saxpyVava(SAXPY_VAVA_ARGS));
}
VormStatus n8_ownvormSaxpy_vava_32f_L(SAXPY_VAVA_PARAMS_L(float))
{
    return contiguousKernel<Saxpy<float>>(saxpyVavaL(SAXPY_VAVA_ARGS_L));
}
}
