// vormGaxpy_mva: public layers, and the kernels for elements anywhere.

#include "products/gaxpy_calls.hpp"
#include "products/shapes/gaxpy_mva.hpp"

using namespace vorm;
using namespace vorm::products;

extern "C" {

VormStatus n8_vormGaxpy_mva_32f(GAXPY_MVA_PARAMS(float))
{
    return checked<7000, 5000>(gaxpyMva(GAXPY_MVA_ARGS), n8_ownOMP_vormGaxpy_mva_32f, n8_ownvormGaxpy_mva_32f,
                               n8_ownvormGaxpy_mva_32f_S2, GAXPY_MVA_ARGS);
}
VormStatus n8_vormGaxpy_mva_64f(GAXPY_MVA_PARAMS(double))
{
    return checked<5000>(gaxpyMva(GAXPY_MVA_ARGS), n8_ownOMP_vormGaxpy_mva_64f, n8_ownvormGaxpy_mva_64f,
                         n8_ownvormGaxpy_mva_64f_S2, GAXPY_MVA_ARGS);
}
VormStatus n8_vormGaxpy_mva_32f_L(GAXPY_MVA_PARAMS_L(float))
{
    return checked<7000, 500>(gaxpyMvaL(GAXPY_MVA_ARGS_L), n8_ownOMP_vormGaxpy_mva_32f_L, n8_ownvormGaxpy_mva_32f_L,
                              n8_ownvormGaxpy_mva_32f_LS2, GAXPY_MVA_ARGS_L);
}
VormStatus n8_vormGaxpy_mva_64f_L(GAXPY_MVA_PARAMS_L(double))
{
    return checked<6000, 5000>(gaxpyMvaL(GAXPY_MVA_ARGS_L), n8_ownOMP_vormGaxpy_mva_64f_L, n8_ownvormGaxpy_mva_64f_L,
                               n8_ownvormGaxpy_mva_64f_LS2, GAXPY_MVA_ARGS_L);
}
VormStatus n8_vormGaxpy_mva_32f_P(GAXPY_MVA_PARAMS_P(float))
{
    return checked<4500>(gaxpyMvaP(GAXPY_MVA_ARGS_P), n8_ownOMP_vormGaxpy_mva_32f_P, n8_ownvormGaxpy_mva_32f_P,
                         GAXPY_MVA_ARGS_P);
}
VormStatus n8_vormGaxpy_mva_64f_P(GAXPY_MVA_PARAMS_P(double))
{
    return checked<7000>(gaxpyMvaP(GAXPY_MVA_ARGS_P), n8_ownOMP_vormGaxpy_mva_64f_P, n8_ownvormGaxpy_mva_64f_P,
                         GAXPY_MVA_ARGS_P);
}

VormStatus n8_ownvormGaxpy_mva_32f_S2(GAXPY_MVA_PARAMS(float)) { return gaxpyAnyStride(gaxpyMva(GAXPY_MVA_ARGS)); }
VormStatus n8_ownvormGaxpy_mva_64f_S2(GAXPY_MVA_PARAMS(double)) { return gaxpyAnyStride(gaxpyMva(GAXPY_MVA_ARGS)); }
VormStatus n8_ownvormGaxpy_mva_32f_LS2(GAXPY_MVA_PARAMS_L(float))
{
    return gaxpyAnyStrideList(gaxpyMvaL(GAXPY_MVA_ARGS_L));
}
VormStatus n8_ownvormGaxpy_mva_64f_LS2(GAXPY_MVA_PARAMS_L(double))
{
    return gaxpyAnyStrideList(gaxpyMvaL(GAXPY_MVA_ARGS_L));
}
VormStatus n8_ownvormGaxpy_mva_32f_P(GAXPY_MVA_PARAMS_P(float)) { return gaxpyPointers(gaxpyMvaP(GAXPY_MVA_ARGS_P)); }
VormStatus n8_ownvormGaxpy_mva_64f_P(GAXPY_MVA_PARAMS_P(double)) { return gaxpyPointers(gaxpyMvaP(GAXPY_MVA_ARGS_P)); }
}
