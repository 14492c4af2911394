// vormSaxpy_vv: public layers, and the kernels for elements anywhere.

#include "elementwise/calls.hpp"
#include "elementwise/shapes/saxpy_vv.hpp"

using namespace vorm;
using namespace vorm::elementwise;

extern "C" {

VormStatus n8_vormSaxpy_vv_32f(SAXPY_VV_PARAMS(float))
{
    return checked(saxpyVv(SAXPY_VV_ARGS), n8_ownvormSaxpy_vv_32f, n8_ownvormSaxpy_vv_32f_S2, SAXPY_VV_ARGS);
}
VormStatus n8_vormSaxpy_vv_64f(SAXPY_VV_PARAMS(double))
{
    return checked(saxpyVv(SAXPY_VV_ARGS), n8_ownvormSaxpy_vv_64f, n8_ownvormSaxpy_vv_64f_S2, SAXPY_VV_ARGS);
}
VormStatus n8_vormSaxpy_vv_32f_P(SAXPY_VV_PARAMS_P(float))
{
    return checked(saxpyVvP(SAXPY_VV_ARGS_P), n8_ownvormSaxpy_vv_32f_P, SAXPY_VV_ARGS_P);
}
VormStatus n8_vormSaxpy_vv_64f_P(SAXPY_VV_PARAMS_P(double))
{
    return checked(saxpyVvP(SAXPY_VV_ARGS_P), n8_ownvormSaxpy_vv_64f_P, SAXPY_VV_ARGS_P);
}

VormStatus n8_ownvormSaxpy_vv_32f_S2(SAXPY_VV_PARAMS(float))
{
    return anyStrideKernel<Saxpy<float>>(saxpyVv(SAXPY_VV_ARGS));
}
VormStatus n8_ownvormSaxpy_vv_64f_S2(SAXPY_VV_PARAMS(double))
{
    return anyStrideKernel<Saxpy<double>>(saxpyVv(SAXPY_VV_ARGS));
}
VormStatus n8_ownvormSaxpy_vv_32f_P(SAXPY_VV_PARAMS_P(float))
{
    return anyStrideKernel<Saxpy<float>>(saxpyVvP(SAXPY_VV_ARGS_P));
}
VormStatus n8_ownvormSaxpy_vv_64f_P(SAXPY_VV_PARAMS_P(double))
{
    return anyStrideKernel<Saxpy<double>>(saxpyVvP(SAXPY_VV_ARGS_P));
}
}
