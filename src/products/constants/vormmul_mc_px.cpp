// vormMul_mc: public layers, and the kernels for elements anywhere.

#include "elementwise/matrix_calls.hpp"
#include "products/shapes/mc.hpp"

using namespace vorm;
using namespace vorm::products;
using elementwise::anyStrideKernel, elementwise::contiguousKernel, elementwise::pointerKernel;

extern "C" {

VormStatus n8_vormMul_mc_32f(MC_PARAMS(float))
{
    return checked(mc<AsStored>(MC_ARGS), n8_ownvormMul_mc_32f, n8_ownvormMul_mc_32f_S2, MC_ARGS);
}
VormStatus n8_vormMul_mc_64f(MC_PARAMS(double))
{
    return checked(mc<AsStored>(MC_ARGS), n8_ownvormMul_mc_64f, n8_ownvormMul_mc_64f_S2, MC_ARGS);
}
VormStatus n8_vormMul_mc_32f_P(MC_PARAMS_P(float))
{
    return checked(mcP<AsStored>(MC_ARGS_P), n8_ownvormMul_mc_32f_P, MC_ARGS_P);
}
VormStatus n8_vormMul_mc_64f_P(MC_PARAMS_P(double))
{
    return checked(mcP<AsStored>(MC_ARGS_P), n8_ownvormMul_mc_64f_P, MC_ARGS_P);
}

VormStatus n8_ownvormMul_mc_32f_S2(MC_PARAMS(float)) { return anyStrideKernel<Mul>(mc<AsStored>(MC_ARGS)); }
VormStatus n8_ownvormMul_mc_64f_S2(MC_PARAMS(double)) { return anyStrideKernel<Mul>(mc<AsStored>(MC_ARGS)); }
VormStatus n8_ownvormMul_mc_32f_P(MC_PARAMS_P(float)) { return pointerKernel<Mul>(mcP<AsStored>(MC_ARGS_P)); }
VormStatus n8_ownvormMul_mc_64f_P(MC_PARAMS_P(double)) { return pointerKernel<Mul>(mcP<AsStored>(MC_ARGS_P)); }
}
