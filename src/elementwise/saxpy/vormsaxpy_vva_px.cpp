// vormSaxpy_vva: public layers, and the kernels for elements anywhere.

#include "elementwise/calls.hpp"
#include "elementwise/shapes/saxpy_vva.hpp"

using namespace vorm;
using namespace vorm::elementwise;

extern "C" {

VormStatus n8_vormSaxpy_vva_32f(SAXPY_VVA_PARAMS(float))
{
    return checked<3000, 2000>(saxpyVva(SAXPY_VVA_ARGS), n8_ownOMP_vormSaxpy_vva_32f, n8_ownvormSaxpy_vva_32f,
                               n8_ownvormSaxpy_vva_32f_S2, SAXPY_VVA_ARGS);
}
VormStatus n8_vormSaxpy_vva_64f(SAXPY_VVA_PARAMS(double))
{
    return checked<3000, 1200>(saxpyVva(SAXPY_VVA_ARGS), n8_ownOMP_vormSaxpy_vva_64f, n8_ownvormSaxpy_vva_64f,
                               n8_ownvormSaxpy_vva_64f_S2, SAXPY_VVA_ARGS);
}
VormStatus n8_vormSaxpy_vva_32f_L(SAXPY_VVA_PARAMS_L(float))
{
    return checked<1500>(saxpyVvaL(SAXPY_VVA_ARGS_L), n8_ownOMP_vormSaxpy_vva_32f_L, n8_ownvormSaxpy_vva_32f_L,
                         n8_ownvormSaxpy_vva_32f_LS2, SAXPY_VVA_ARGS_L);
}
VormStatus n8_vormSaxpy_vva_64f_L(SAXPY_VVA_PARAMS_L(double))
{
    return checked<1000>(saxpyVvaL(SAXPY_VVA_ARGS_L), n8_ownOMP_vormSaxpy_vva_64f_L, n8_ownvormSaxpy_vva_64f_L,
                         n8_ownvormSaxpy_vva_64f_LS2, SAXPY_VVA_ARGS_L);
}
VormStatus n8_vormSaxpy_vva_32f_P(SAXPY_VVA_PARAMS_P(float))
{
    return checked<1200>(saxpyVvaP(SAXPY_VVA_ARGS_P), n8_ownOMP_vormSaxpy_vva_32f_P, n8_ownvormSaxpy_vva_32f_P,
                         SAXPY_VVA_ARGS_P);
}
VormStatus n8_vormSaxpy_vva_64f_P(SAXPY_VVA_PARAMS_P(double))
{
    return checked<1200>(saxpyVvaP(SAXPY_VVA_ARGS_P), n8_ownOMP_vormSaxpy_vva_64f_P, n8_ownvormSaxpy_vva_64f_P,
                         SAXPY_VVA_ARGS_P);
}

VormStatus n8_ownvormSaxpy_vva_32f_S2(SAXPY_VVA_PARAMS(float))
{
    return anyStrideKernel<Saxpy<float>>(saxpyVva(SAXPY_VVA_ARGS));
}
VormStatus n8_ownvormSaxpy_vva_64f_S2(SAXPY_VVA_PARAMS(double))
{
    return anyStrideKernel<Saxpy<double>>(saxpyVva(SAXPY_VVA_ARGS));
}
VormStatus n8_ownvormSaxpy_vva_32f_LS2(SAXPY_VVA_PARAMS_L(float))
{
    return anyStrideKernel<Saxpy<float>>(saxpyVvaL(SAXPY_VVA_ARGS_L));
}
VormStatus n8_ownvormSaxpy_vva_64f_LS2(SAXPY_VVA_PARAMS_L(double))
{
    return anyStrideKernel<Saxpy<double>>(saxpyVvaL(SAXPY_VVA_ARGS_L));
}
VormStatus n8_ownvormSaxpy_vva_32f_P(SAXPY_VVA_PARAMS_P(float))
{
    return pointerKernel<Saxpy<float>>(saxpyVvaP(SAXPY_VVA_ARGS_P));
}
VormStatus n8_ownvormSaxpy_vva_64f_P(SAXPY_VVA_PARAMS_P(double))
{
    return pointerKernel<Saxpy<double>>(saxpyVvaP(SAXPY_VVA_ARGS_P));
}
}
