// vormSub_vva: public layers, and the kernels for elements anywhere.

#include "elementwise/calls.hpp"
#include "elementwise/shapes/vva.hpp"

using namespace vorm;
using namespace vorm::elementwise;

extern "C" {

VormStatus n8_vormSub_vva_32f(VVA_PARAMS(float))
{
    return checked<4800>(vva(VVA_ARGS), n8_ownOMP_vormSub_vva_32f, n8_ownvormSub_vva_32f, n8_ownvormSub_vva_32f_S2,
                         VVA_ARGS);
}
VormStatus n8_vormSub_vva_64f(VVA_PARAMS(double))
{
    return checked<1400>(vva(VVA_ARGS), n8_ownOMP_vormSub_vva_64f, n8_ownvormSub_vva_64f, n8_ownvormSub_vva_64f_S2,
                         VVA_ARGS);
}
VormStatus n8_vormSub_vva_32f_L(VVA_PARAMS_L(float))
{
    return checked<2500>(vvaL(VVA_ARGS_L), n8_ownOMP_vormSub_vva_32f_L, n8_ownvormSub_vva_32f_L,
                         n8_ownvormSub_vva_32f_LS2, VVA_ARGS_L);
}
VormStatus n8_vormSub_vva_64f_L(VVA_PARAMS_L(double))
{
    return checked<2500>(vvaL(VVA_ARGS_L), n8_ownOMP_vormSub_vva_64f_L, n8_ownvormSub_vva_64f_L,
                         n8_ownvormSub_vva_64f_LS2, VVA_ARGS_L);
}
VormStatus n8_vormSub_vva_32f_P(VVA_PARAMS_P(float))
{
    return checked<1500>(vvaP(VVA_ARGS_P), n8_ownOMP_vormSub_vva_32f_P, n8_ownvormSub_vva_32f_P, VVA_ARGS_P);
}
VormStatus n8_vormSub_vva_64f_P(VVA_PARAMS_P(double))
{
    return checked<1500>(vvaP(VVA_ARGS_P), n8_ownOMP_vormSub_vva_64f_P, n8_ownvormSub_vva_64f_P, VVA_ARGS_P);
}

VormStatus n8_ownvormSub_vva_32f_S2(VVA_PARAMS(float)) { return anyStrideKernel<Sub>(vva(VVA_ARGS)); }
VormStatus n8_ownvormSub_vva_64f_S2(VVA_PARAMS(double)) { return anyStrideKernel<Sub>(vva(VVA_ARGS)); }
VormStatus n8_ownvormSub_vva_32f_LS2(VVA_PARAMS_L(float))
{
    return eachSingle(vvaL(VVA_ARGS_L), n8_ownvormSub_vv_32f_S2);
}
VormStatus n8_ownvormSub_vva_64f_LS2(VVA_PARAMS_L(double))
{
    return eachSingle(vvaL(VVA_ARGS_L), n8_ownvormSub_vv_64f_S2);
}
VormStatus n8_ownvormSub_vva_32f_P(VVA_PARAMS_P(float)) { return pointerKernel<Sub>(vvaP(VVA_ARGS_P)); }
VormStatus n8_ownvormSub_vva_64f_P(VVA_PARAMS_P(double)) { return pointerKernel<Sub>(vvaP(VVA_ARGS_P)); }
}
