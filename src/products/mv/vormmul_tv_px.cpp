// vormMul_tv: public layers, and the kernels for elements anywhere.

#include "products/shapes/mv.hpp"
#include "products/vector_calls.hpp"

using namespace vorm;
using namespace vorm::products;

extern "C" {

VormStatus n8_vormMul_tv_32f(MV_PARAMS(float))
{
    return checked(mv<AsTransposed>(MV_ARGS), n8_ownvormMul_tv_32f, n8_ownvormMul_tv_32f_S2, MV_ARGS);
}
VormStatus n8_vormMul_tv_64f(MV_PARAMS(double))
{
    return checked(mv<AsTransposed>(MV_ARGS), n8_ownvormMul_tv_64f, n8_ownvormMul_tv_64f_S2, MV_ARGS);
}
VormStatus n8_vormMul_tv_32f_P(MV_PARAMS_P(float))
{
    return checked(mvP<AsTransposed>(MV_ARGS_P), n8_ownvormMul_tv_32f_P, MV_ARGS_P);
}
VormStatus n8_vormMul_tv_64f_P(MV_PARAMS_P(double))
{
    return checked(mvP<AsTransposed>(MV_ARGS_P), n8_ownvormMul_tv_64f_P, MV_ARGS_P);
}

VormStatus n8_ownvormMul_tv_32f_S2(MV_PARAMS(float))
{
    return anyStrideKernel<AsTransposed>(mv<AsTransposed>(MV_ARGS));
}
VormStatus n8_ownvormMul_tv_64f_S2(MV_PARAMS(double))
{
    return anyStrideKernel<AsTransposed>(mv<AsTransposed>(MV_ARGS));
}
VormStatus n8_ownvormMul_tv_32f_P(MV_PARAMS_P(float))
{
    return anyStrideKernel<AsTransposed>(mvP<AsTransposed>(MV_ARGS_P));
}
VormStatus n8_ownvormMul_tv_64f_P(MV_PARAMS_P(double))
{
    return anyStrideKernel<AsTransposed>(mvP<AsTransposed>(MV_ARGS_P));
}
}
