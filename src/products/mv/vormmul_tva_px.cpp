// vormMul_tva: public layers, and the kernels for elements anywhere.

#include "products/shapes/mva.hpp"
#include "products/vector_calls.hpp"

using namespace vorm;
using namespace vorm::products;

extern "C" {

VormStatus n8_vormMul_tva_32f(MVA_PARAMS(float))
{
    return checked<2500, teamLimitAnyStride>(mva<AsTransposed>(MVA_ARGS), n8_ownOMP_vormMul_tva_32f,
                                             n8_ownvormMul_tva_32f, n8_ownvormMul_tva_32f_S2, MVA_ARGS);
}
VormStatus n8_vormMul_tva_64f(MVA_PARAMS(double))
{
    return checked<3600, teamLimitAnyStride>(mva<AsTransposed>(MVA_ARGS), n8_ownOMP_vormMul_tva_64f,
                                             n8_ownvormMul_tva_64f, n8_ownvormMul_tva_64f_S2, MVA_ARGS);
}
VormStatus n8_vormMul_tva_32f_L(MVA_PARAMS_L(float))
{
    return checked<teamLimitList, teamLimitAnyStride>(mvaL<AsTransposed>(MVA_ARGS_L), n8_ownOMP_vormMul_tva_32f_L,
                                                      n8_ownvormMul_tva_32f_L, n8_ownvormMul_tva_32f_LS2, MVA_ARGS_L);
}
VormStatus n8_vormMul_tva_64f_L(MVA_PARAMS_L(double))
{
    return checked<teamLimitList, teamLimitAnyStride>(mvaL<AsTransposed>(MVA_ARGS_L), n8_ownOMP_vormMul_tva_64f_L,
                                                      n8_ownvormMul_tva_64f_L, n8_ownvormMul_tva_64f_LS2, MVA_ARGS_L);
}
VormStatus n8_vormMul_tva_32f_P(MVA_PARAMS_P(float))
{
    return checked<teamLimitPointers>(mvaP<AsTransposed>(MVA_ARGS_P), n8_ownOMP_vormMul_tva_32f_P,
                                      n8_ownvormMul_tva_32f_P, MVA_ARGS_P);
}
VormStatus n8_vormMul_tva_64f_P(MVA_PARAMS_P(double))
{
    return checked<teamLimitPointers>(mvaP<AsTransposed>(MVA_ARGS_P), n8_ownOMP_vormMul_tva_64f_P,
                                      n8_ownvormMul_tva_64f_P, MVA_ARGS_P);
}

VormStatus n8_ownvormMul_tva_32f_S2(MVA_PARAMS(float))
{
    return anyStrideKernel<AsTransposed>(mva<AsTransposed>(MVA_ARGS));
}
VormStatus n8_ownvormMul_tva_64f_S2(MVA_PARAMS(double))
{
    return anyStrideKernel<AsTransposed>(mva<AsTransposed>(MVA_ARGS));
}
VormStatus n8_ownvormMul_tva_32f_LS2(MVA_PARAMS_L(float))
{
    return eachSingle(mvaL<AsTransposed>(MVA_ARGS_L), n8_ownvormMul_tv_32f_S2);
}
VormStatus n8_ownvormMul_tva_64f_LS2(MVA_PARAMS_L(double))
{
    return eachSingle(mvaL<AsTransposed>(MVA_ARGS_L), n8_ownvormMul_tv_64f_S2);
}
VormStatus n8_ownvormMul_tva_32f_P(MVA_PARAMS_P(float))
{
    return pointerKernel<AsTransposed>(mvaP<AsTransposed>(MVA_ARGS_P));
}
VormStatus n8_ownvormMul_tva_64f_P(MVA_PARAMS_P(double))
{
    return pointerKernel<AsTransposed>(mvaP<AsTransposed>(MVA_ARGS_P));
}
}
