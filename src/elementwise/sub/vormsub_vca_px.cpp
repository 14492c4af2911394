// vormSub_vca: public layers, and the kernels for elements anywhere.

#include "elementwise/vca.hpp"

using namespace vorm;

extern "C" {

VormStatus n8_vormSub_vca_32f(VCA_PARAMS(float))
{
    return vcaChecked<4800>(n8_ownOMP_vormSub_vca_32f, n8_ownvormSub_vca_32f, n8_ownvormSub_vca_32f_S2, VCA_ARGS);
}
VormStatus n8_vormSub_vca_64f(VCA_PARAMS(double))
{
    return vcaChecked<1400>(n8_ownOMP_vormSub_vca_64f, n8_ownvormSub_vca_64f, n8_ownvormSub_vca_64f_S2, VCA_ARGS);
}
VormStatus n8_vormSub_vca_32f_L(VCA_PARAMS_L(float))
{
    return vcaCheckedL<2500>(n8_ownOMP_vormSub_vca_32f_L, n8_ownvormSub_vca_32f_L, n8_ownvormSub_vca_32f_LS2,
                             VCA_ARGS_L);
}
VormStatus n8_vormSub_vca_64f_L(VCA_PARAMS_L(double))
{
    return vcaCheckedL<2500>(n8_ownOMP_vormSub_vca_64f_L, n8_ownvormSub_vca_64f_L, n8_ownvormSub_vca_64f_LS2,
                             VCA_ARGS_L);
}
VormStatus n8_vormSub_vca_32f_P(VCA_PARAMS_P(float))
{
    return vcaCheckedP<1500>(n8_ownOMP_vormSub_vca_32f_P, n8_ownvormSub_vca_32f_P, VCA_ARGS_P);
}
VormStatus n8_vormSub_vca_64f_P(VCA_PARAMS_P(double))
{
    return vcaCheckedP<1500>(n8_ownOMP_vormSub_vca_64f_P, n8_ownvormSub_vca_64f_P, VCA_ARGS_P);
}

VormStatus n8_ownvormSub_vca_32f_S2(VCA_PARAMS(float)) { return vcaAnyStride<Sub>(VCA_ARGS); }
VormStatus n8_ownvormSub_vca_64f_S2(VCA_PARAMS(double)) { return vcaAnyStride<Sub>(VCA_ARGS); }
VormStatus n8_ownvormSub_vca_32f_LS2(VCA_PARAMS_L(float)) { return vcaAnyStrideL<Sub>(VCA_ARGS_L); }
VormStatus n8_ownvormSub_vca_64f_LS2(VCA_PARAMS_L(double)) { return vcaAnyStrideL<Sub>(VCA_ARGS_L); }
VormStatus n8_ownvormSub_vca_32f_P(VCA_PARAMS_P(float)) { return vcaPointers<Sub>(VCA_ARGS_P); }
VormStatus n8_ownvormSub_vca_64f_P(VCA_PARAMS_P(double)) { return vcaPointers<Sub>(VCA_ARGS_P); }
}
