// vormMul_mava: public layers, and the kernels for elements anywhere.

#include "products/shapes/mava.hpp"
#include "products/vector_calls.hpp"

using namespace vorm;
using namespace vorm::products;

extern "C" {

VormStatus n8_vormMul_mava_32f(MAVA_PARAMS(float))
{
    return checked<2500, teamLimitAnyStride>(mava<AsStored>(MAVA_ARGS), n8_ownOMP_vormMul_mava_32f,
                                             n8_ownvormMul_mava_32f, n8_ownvormMul_mava_32f_S2, MAVA_ARGS);
}
VormStatus n8_vormMul_mava_64f(MAVA_PARAMS(double))
{
    return checked<3600, teamLimitAnyStride>(mava<AsStored>(MAVA_ARGS), n8_ownOMP_vormMul_mava_64f,
                                             n8_ownvormMul_mava_64f, n8_ownvormMul_mava_64f_S2, MAVA_ARGS);
}
VormStatus n8_vormMul_mava_32f_L(MAVA_PARAMS_L(float))
{
    return checked<teamLimitList, teamLimitAnyStride>(mavaL<AsStored>(MAVA_ARGS_L), n8_ownOMP_vormMul_mava_32f_L,
                                                      n8_ownvormMul_mava_32f_L, n8_ownvormMul_mava_32f_LS2,
                                                      MAVA_ARGS_L);
}
VormStatus n8_vormMul_mava_64f_L(MAVA_PARAMS_L(double))
{
    return checked<teamLimitList, teamLimitAnyStride>(mavaL<AsStored>(MAVA_ARGS_L), n8_ownOMP_vormMul_mava_64f_L,
                                                      n8_ownvormMul_mava_64f_L, n8_ownvormMul_mava_64f_LS2,
                                                      MAVA_ARGS_L);
}
VormStatus n8_vormMul_mava_32f_P(MAVA_PARAMS_P(float))
{
    return checked<teamLimitPointers>(mavaP<AsStored>(MAVA_ARGS_P), n8_ownOMP_vormMul_mava_32f_P,
                                      n8_ownvormMul_mava_32f_P, MAVA_ARGS_P);
}
VormStatus n8_vormMul_mava_64f_P(MAVA_PARAMS_P(double))
{
    return checked<teamLimitPointers>(mavaP<AsStored>(MAVA_ARGS_P), n8_ownOMP_vormMul_mava_64f_P,
                                      n8_ownvormMul_mava_64f_P, MAVA_ARGS_P);
}

VormStatus n8_ownvormMul_mava_32f_S2(MAVA_PARAMS(float))
{
    return anyStrideKernel<AsStored>(mava<AsStored>(MAVA_ARGS));
}
VormStatus n8_ownvormMul_mava_64f_S2(MAVA_PARAMS(double))
{
    return anyStrideKernel<AsStored>(mava<AsStored>(MAVA_ARGS));
}
VormStatus n8_ownvormMul_mava_32f_LS2(MAVA_PARAMS_L(float))
{
    return eachSingle(mavaL<AsStored>(MAVA_ARGS_L), n8_ownvormMul_mv_32f_S2);
}
VormStatus n8_ownvormMul_mava_64f_LS2(MAVA_PARAMS_L(double))
{
    return eachSingle(mavaL<AsStored>(MAVA_ARGS_L), n8_ownvormMul_mv_64f_S2);
}
VormStatus n8_ownvormMul_mava_32f_P(MAVA_PARAMS_P(float))
{
    return pointerKernel<AsStored>(mavaP<AsStored>(MAVA_ARGS_P));
}
VormStatus n8_ownvormMul_mava_64f_P(MAVA_PARAMS_P(double))
{
    return pointerKernel<AsStored>(mavaP<AsStored>(MAVA_ARGS_P));
}
}
