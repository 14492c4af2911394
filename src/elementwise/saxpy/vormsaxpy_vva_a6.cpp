// vormSaxpy_vva: the kernels for contiguous elements, single precision.

#include "elementwise/calls.hpp"
#include "elementwise/shapes/saxpy_vva.hpp"

using namespace vorm;
using namespace vorm::elementwise;

extern "C" {

VormStatus n8_ownvormSaxpy_vva_32f(SAXPY_VVA_PARAMS(float))
{
    return contiguousKernel<Saxpy<float>>(saxpyVva(SAXPY_VVA_ARGS));
}
VormStatus n8_ownvormSaxpy_vva_32f_L(SAXPY_VVA_PARAMS_L(float))
{
    return contiguousKernel<Saxpy<float>>(saxpyVvaL(SAXPY_VVA_ARGS_L));
}
}
