// vormMul_tac: public layers, and the kernels for elements anywhere.

#include "elementwise/matrix_calls.hpp"
#include "products/shapes/mac.hpp"

using namespace vorm;
using namespace vorm::products;
using elementwise::anyStrideKernel, elementwise::contiguousKernel, elementwise::pointerKernel;

extern "C" {

VormStatus n8_vormMul_tac_32f(MAC_PARAMS(float))
{
    return checked<3500>(mac<AsTransposed>(MAC_ARGS), n8_ownOMP_vormMul_tac_32f, n8_ownvormMul_tac_32f,
                         n8_ownvormMul_tac_32f_S2, MAC_ARGS);
}
VormStatus n8_vormMul_tac_64f(MAC_PARAMS(double))
{
    return checked<3500>(mac<AsTransposed>(MAC_ARGS), n8_ownOMP_vormMul_tac_64f, n8_ownvormMul_tac_64f,
                         n8_ownvormMul_tac_64f_S2, MAC_ARGS);
}
VormStatus n8_vormMul_tac_32f_L(MAC_PARAMS_L(float))
{
    return checked<3500, 1500>(macL<AsTransposed>(MAC_ARGS_L), n8_ownOMP_vormMul_tac_32f_L, n8_ownvormMul_tac_32f_L,
                               n8_ownvormMul_tac_32f_LS2, MAC_ARGS_L);
}
VormStatus n8_vormMul_tac_64f_L(MAC_PARAMS_L(double))
{
    return checked<3500>(macL<AsTransposed>(MAC_ARGS_L), n8_ownOMP_vormMul_tac_64f_L, n8_ownvormMul_tac_64f_L,
                         n8_ownvormMul_tac_64f_LS2, MAC_ARGS_L);
}
VormStatus n8_vormMul_tac_32f_P(MAC_PARAMS_P(float))
{
    return checked<1700>(macP<AsTransposed>(MAC_ARGS_P), n8_ownOMP_vormMul_tac_32f_P, n8_ownvormMul_tac_32f_P,
                         MAC_ARGS_P);
}
VormStatus n8_vormMul_tac_64f_P(MAC_PARAMS_P(double))
{
    return checked<1700>(macP<AsTransposed>(MAC_ARGS_P), n8_ownOMP_vormMul_tac_64f_P, n8_ownvormMul_tac_64f_P,
                         MAC_ARGS_P);
}

VormStatus n8_ownvormMul_tac_32f_S2(MAC_PARAMS(float)) { return anyStrideKernel<Mul>(mac<AsTransposed>(MAC_ARGS)); }
VormStatus n8_ownvormMul_tac_64f_S2(MAC_PARAMS(double)) { return anyStrideKernel<Mul>(mac<AsTransposed>(MAC_ARGS)); }
VormStatus n8_ownvormMul_tac_32f_LS2(MAC_PARAMS_L(float))
{
    return eachSingle(macL<AsTransposed>(MAC_ARGS_L), n8_ownvormMul_tc_32f_S2);
}
VormStatus n8_ownvormMul_tac_64f_LS2(MAC_PARAMS_L(double))
{
    return eachSingle(macL<AsTransposed>(MAC_ARGS_L), n8_ownvormMul_tc_64f_S2);
}
VormStatus n8_ownvormMul_tac_32f_P(MAC_PARAMS_P(float)) { return pointerKernel<Mul>(macP<AsTransposed>(MAC_ARGS_P)); }
VormStatus n8_ownvormMul_tac_64f_P(MAC_PARAMS_P(double)) { return pointerKernel<Mul>(macP<AsTransposed>(MAC_ARGS_P)); }
}
