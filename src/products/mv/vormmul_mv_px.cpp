// vormMul_mv: public layers, and the kernels for elements anywhere.

#include "products/shapes/mv.hpp"
#include "products/vector_calls.hpp"

using namespace vorm;
using namespace vorm::products;

extern "C" {

VormStatus n8_vormMul_mv_32f(MV_PARAMS(float))
{
    return checked(mv<AsStored>(MV_ARGS), n8_ownvormMul_mv_32f, n8_ownvormMul_mv_32f_S2, MV_ARGS);
}
VormStatus n8_vormMul_mv_64f(MV_PARAMS(double))
{
    return checked(mv<AsStored>(MV_ARGS), n8_ownvormMul_mv_64f, n8_ownvormMul_mv_64f_S2, MV_ARGS);
}
VormStatus n8_vormMul_mv_32f_P(MV_PARAMS_P(float))
{
    return checked(mvP<AsStored>(MV_ARGS_P), n8_ownvormMul_mv_32f_P, MV_ARGS_P);
}
VormStatus n8_vormMul_mv_64f_P(MV_PARAMS_P(double))
{
    return checked(mvP<AsStored>(MV_ARGS_P), n8_ownvormMul_mv_64f_P, MV_ARGS_P);
}

VormStatus n8_ownvormMul_mv_32f_S2(MV_PARAMS(float)) { return anyStrideKernel<AsStored>(mv<AsStored>(MV_ARGS)); }
VormStatus n8_ownvormMul_mv_64f_S2(MV_PARAMS(double)) { return anyStrideKernel<AsStored>(mv<AsStored>(MV_ARGS)); }
VormStatus n8_ownvormMul_mv_32f_P(MV_PARAMS_P(float)) { return anyStrideKernel<AsStored>(mvP<AsStored>(MV_ARGS_P)); }
VormStatus n8_ownvormMul_mv_64f_P(MV_PARAMS_P(double)) { return anyStrideKernel<AsStored>(mvP<AsStored>(MV_ARGS_P)); }
}
