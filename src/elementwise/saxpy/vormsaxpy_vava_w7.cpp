// vormSaxpy_vava: the kernels for contiguous elements, double precision.

#include "elementwise/calls.hpp"
#include "elementwise/shapes/saxpy_vava.hpp"

using namespace vorm;
using namespace vorm::elementwise;

extern "C" {

VormStatus n8_ownvormSaxpy_vava_64f(SAXPY_VAVA_PARAMS(double))
{
    return contiguousKernel<Saxpy<double>>(saxpyVava(SAXPY_VAVA_ARGS));
}
VormStatus n8_ownvormSaxpy_vava_64f_L(SAXPY_VAVA_PARAMS_L(double))
{
    return contiguousKernel<Saxpy<double>>(saxpyVavaL(SAXPY_VAVA_ARGS_L));
}
}
