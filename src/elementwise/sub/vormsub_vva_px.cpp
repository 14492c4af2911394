// vormSub_vva: public layers, and the kernels for elements anywhere.

#include "elementwise/vva.hpp"

using namespace vorm;

extern "C" {

VormStatus n8_vormSub_vva_32f(VVA_PARAMS(float))
{
    return vvaChecked<4800>(n8_ownOMP_vormSub_vva_32f, n8_ownvormSub_vva_32f, n8_ownvormSub_vva_32f_S2, VVA_ARGS);
}
VormStatus n8_vormSub_vva_64f(VVA_PARAMS(double))
{
    return vvaChecked<1400>(n8_ownOMP_vormSub_vva_64f, n8_ownvormSub_vva_64f, n8_ownvormSub_vva_64f_S2, VVA_ARGS);
}
VormStatus n8_vormSub_vva_32f_L(VVA_PARAMS_L(float))
{
    return vvaCheckedL<2500>(n8_ownOMP_vormSub_vva_32f_L, n8_ownvormSub_vva_32f_L, n8_ownvormSub_vva_32f_LS2,
                             VVA_ARGS_L);
}
VormStatus n8_vormSub_vva_64f_L(VVA_PARAMS_L(double))
{
    return vvaCheckedL<2500>(n8_ownOMP_vormSub_vva_64f_L, n8_ownvormSub_vva_64f_L, n8_ownvormSub_vva_64f_LS2,
                             VVA_ARGS_L);
}
VormStatus n8_vormSub_vva_32f_P(VVA_PARAMS_P(float))
{
    return vvaCheckedP<1500>(n8_ownOMP_vormSub_vva_32f_P, n8_ownvormSub_vva_32f_P, VVA_ARGS_P);
}
VormStatus n8_vormSub_vva_64f_P(VVA_PARAMS_P(double))
{
    return vvaCheckedP<1500>(n8_ownOMP_vormSub_vva_64f_P, n8_ownvormSub_vva_64f_P, VVA_ARGS_P);
}

VormStatus n8_ownvormSub_vva_32f_S2(VVA_PARAMS(float)) { return vvaAnyStride<Sub>(VVA_ARGS); }
VormStatus n8_ownvormSub_vva_64f_S2(VVA_PARAMS(double)) { return vvaAnyStride<Sub>(VVA_ARGS); }
VormStatus n8_ownvormSub_vva_32f_LS2(VVA_PARAMS_L(float)) { return vvaEachSingle(n8_ownvormSub_vv_32f_S2, VVA_ARGS_L); }
VormStatus n8_ownvormSub_vva_64f_LS2(VVA_PARAMS_L(double))
{
    return vvaEachSingle(n8_ownvormSub_vv_64f_S2, VVA_ARGS_L);
}
VormStatus n8_ownvormSub_vva_32f_P(VVA_PARAMS_P(float)) { return vvaPointers<Sub>(VVA_ARGS_P); }
VormStatus n8_ownvormSub_vva_64f_P(VVA_PARAMS_P(double)) { return vvaPointers<Sub>(VVA_ARGS_P); }
}
