// vormSaxpy_vava: public layers, and the kernels for elements anywhere.

#include "elementwise/calls.hpp"
#include "elementwise/shapes/saxpy_vava.hpp"

using namespace vorm;
using namespace vorm::elementwise;

extern "C" {

VormStatus n8_vormSaxpy_vava_32f(SAXPY_VAVA_PARAMS(float))
{
    return checked<3000, 2000>(saxpyVava(SAXPY_VAVA_ARGS), n8_ownOMP_vormSaxpy_vava_32f, n8_ownvormSaxpy_vava_32f,
                               n8_ownvormSaxpy_vava_32f_S2, SAXPY_VAVA_ARGS);
}
VormStatus n8_vormSaxpy_vava_64f(SAXPY_VAVA_PARAMS(double))
{
    return checked<3000, 1200>(saxpyVava(SAXPY_VAVA_ARGS), n8_ownOMP_vormSaxpy_vava_64f, n8_ownvormSaxpy_vava_64f,
                               n8_ownvormSaxpy_vava_64f_S2, SAXPY_VAVA_ARGS);
}
VormStatus n8_vormSaxpy_vava_32f_L(SAXPY_VAVA_PARAMS_L(float))
{
    return checked<1500, 1000>(saxpyVavaL(SAXPY_VAVA_ARGS_L), n8_ownOMP_vormSaxpy_vava_32f_L,
                               n8_ownvormSaxpy_vava_32f_L, n8_ownvormSaxpy_vava_32f_LS2, SAXPY_VAVA_ARGS_L);
}
VormStatus n8_vormSaxpy_vava_64f_L(SAXPY_VAVA_PARAMS_L(double))
{
    return checked<1000>(saxpyVavaL(SAXPY_VAVA_ARGS_L), n8_ownOMP_vormSaxpy_vava_64f_L, n8_ownvormSaxpy_vava_64f_L,
                         n8_ownvormSaxpy_vava_64f_LS2, SAXPY_VAVA_ARGS_L);
}
VormStatus n8_vormSaxpy_vava_32f_P(SAXPY_VAVA_PARAMS_P(float))
{
    return checked<1200>(saxpyVavaP(SAXPY_VAVA_ARGS_P), n8_ownOMP_vormSaxpy_vava_32f_P, n8_ownvormSaxpy_vava_32f_P,
                         SAXPY_VAVA_ARGS_P);
}
VormStatus n8_vormSaxpy_vava_64f_P(SAXPY_VAVA_PARAMS_P(double))
{
    return checked<1200>(saxpyVavaP(SAXPY_VAVA_ARGS_P), n8_ownOMP_vormSaxpy_vava_64f_P, n8_ownvormSaxpy_vava_64f_P,
                         SAXPY_VAVA_ARGS_P);
}

VormStatus n8_ownvormSaxpy_vava_32f_S2(SAXPY_VAVA_PARAMS(float))
{
    return anyStrideKernel<Saxpy<float>>(saxpyVava(SAXPY_VAVA_ARGS));
}
VormStatus n8_ownvormSaxpy_vava_64f_S2(SAXPY_VAVA_PARAMS(double))
{
    return anyStrideKernel<Saxpy<double>>(saxpyVava(SAXPY_VAVA_ARGS));
}
VormStatus n8_ownvormSaxpy_vava_32f_LS2(SAXPY_VAVA_PARAMS_L(float))
{
    return anyStrideKernel<Saxpy<float>>(saxpyVavaL(SAXPY_VAVA_ARGS_L));
}
VormStatus n8_ownvormSaxpy_vava_64f_LS2(SAXPY_VAVA_PARAMS_L(double))
{
    return anyStrideKernel<Saxpy<double>>(saxpyVavaL(SAXPY_VAVA_ARGS_L));
}
VormStatus n8_ownvormSaxpy_vava_32f_P(SAXPY_VAVA_PARAMS_P(float))
{
    return pointerKernel<Saxpy<float>>(saxpyVavaP(SAXPY_VAVA_ARGS_P));
}
VormStatus n8_ownvormSaxpy_vava_64f_P(SAXPY_VAVA_PARAMS_P(double))
{
    return pointerKernel<Saxpy<double>>(saxpyVavaP(SAXPY_VAVA_ARGS_P));
}
}
