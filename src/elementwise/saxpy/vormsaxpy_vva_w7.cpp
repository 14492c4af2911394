// vormSaxpy_vva: the kernels for contiguous elements, double precision.

#include "elementwise/calls.hpp"
#include "elementwise/shapes/saxpy_vva.hpp"

using namespace vorm;
using namespace vorm::elementwise;

extern "C" {

VormStatus n8_ownvormSaxpy_vva_64f(SAXPY_VVA_PARAMS(double))
{
    return contiguousKernel<Saxpy<double>>(saxpyVva(SAXPY_VVA_ARGS));
}
VormStatus n8_ownvormSaxpy_vva_64f_L(SAXPY_VVA_PARAMS_L(double))
{
    return contiguousKernel<Saxpy<double>>(saxpyVvaL(SAXPY_VVA_ARGS_L));
}
}
