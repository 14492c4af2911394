// vormSaxpy_vav: public layers, and the kernels for elements anywhere.

#include "elementwise/calls.hpp"
#include "elementwise/shapes/saxpy_vav.hpp"

using namespace vorm;
using namespace vorm::elementwise;

extern "C" {

VormStatus n8_vormSaxpy_vav_32f(SAXPY_VAV_PARAMS(float))
{
    return checked<3000, 2000>(saxpyVav(SAXPY_VAV_ARGS), n8_ownOMP_vormSaxpy_vav_32f, n8_ownvormSaxpy_vav_32f,
                               n8_ownvormSaxpy_vav_32f_S2, SAXPY_VAV_ARGS);
}
VormStatus n8_vormSaxpy_vav_64f(SAXPY_VAV_PARAMS(double))
{
    return checked<3000, 1200>(saxpyVav(SAXPY_VAV_ARGS), n8_ownOMP_vormSaxpy_vav_64f, n8_ownvormSaxpy_vav_64f,
                               n8_ownvormSaxpy_vav_64f_S2, SAXPY_VAV_ARGS);
}
VormStatus n8_vormSaxpy_vav_32f_L(SAXPY_VAV_PARAMS_L(float))
{
    return checked<1500, 1000>(saxpyVavL(SAXPY_VAV_ARGS_L), n8_ownOMP_vormSaxpy_vav_32f_L, n8_ownvormSaxpy_vav_32f_L,
                               n8_ownvormSaxpy_vav_32f_LS2, SAXPY_VAV_ARGS_L);
}
VormStatus n8_vormSaxpy_vav_64f_L(SAXPY_VAV_PARAMS_L(double))
{
    return checked<1000>(saxpyVavL(SAXPY_VAV_ARGS_L), n8_ownOMP_vormSaxpy_vav_64f_L, n8_ownvormSaxpy_vav_64f_L,
                         n8_ownvormSaxpy_vav_64f_LS2, SAXPY_VAV_ARGS_L);
}
VormStatus n8_vormSaxpy_vav_32f_P(SAXPY_VAV_PARAMS_P(float))
{
    return checked<1200>(saxpyVavP(SAXPY_VAV_ARGS_P), n8_ownOMP_vormSaxpy_vav_32f_P, n8_ownvormSaxpy_vav_32f_P,
                         SAXPY_VAV_ARGS_P);
}
VormStatus n8_vormSaxpy_vav_64f_P(SAXPY_VAV_PARAMS_P(double))
{
    return checked<1200>(saxpyVavP(SAXPY_VAV_ARGS_P), n8_ownOMP_vormSaxpy_vav_64f_P, n8_ownvormSaxpy_vav_64f_P,
                         SAXPY_VAV_ARGS_P);
}

VormStatus n8_ownvormSaxpy_vav_32f_S2(SAXPY_VAV_PARAMS(float))
{
    return anyStrideKernel<Saxpy<float>>(saxpyVav(SAXPY_VAV_ARGS));
}
VormStatus n8_ownvormSaxpy_vav_64f_S2(SAXPY_VAV_PARAMS(double))
{
    return anyStrideKernel<Saxpy<double>>(saxpyVav(SAXPY_VAV_ARGS));
}
VormStatus n8_ownvormSaxpy_vav_32f_LS2(SAXPY_VAV_PARAMS_L(float))
{
    return anyStrideKernel<Saxpy<float>>(saxpyVavL(SAXPY_VAV_ARGS_L));
}
VormStatus n8_ownvormSaxpy_vav_64f_LS2(SAXPY_VAV_PARAMS_L(double))
{
    return anyStrideKernel<Saxpy<double>>(saxpyVavL(SAXPY_VAV_ARGS_L));
}
VormStatus n8_ownvormSaxpy_vav_32f_P(SAXPY_VAV_PARAMS_P(float))
{
    return pointerKernel<Saxpy<float>>(saxpyVavP(SAXPY_VAV_ARGS_P));
}
VormStatus n8_ownvormSaxpy_vav_64f_P(SAXPY_VAV_PARAMS_P(double))
{
    return pointerKernel<Saxpy<double>>(saxpyVavP(SAXPY_VAV_ARGS_P));
}
}
