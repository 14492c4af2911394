// vormSub_vca: public layers, and the kernels for elements anywhere.

#include "elementwise/calls.hpp"
#include "elementwise/shapes/vca.hpp"

using namespace vorm;
using namespace vorm::elementwise;

extern "C" {

VormStatus n8_vormSub_vca_32f(VCA_PARAMS(float))
{
    return checked<4800>(vca(VCA_ARGS), n8_ownOMP_vormSub_vca_32f, n8_ownvormSub_vca_32f, n8_ownvormSub_vca_32f_S2,
                         VCA_ARGS);
}
VormStatus n8_vormSub_vca_64f(VCA_PARAMS(double))
{
    return checked<1400>(vca(VCA_ARGS), n8_ownOMP_vormSub_vca_64f, n8_ownvormSub_vca_64f, n8_ownvormSub_vca_64f_S2,
                         VCA_ARGS);
}
VormStatus n8_vormSub_vca_32f_L(VCA_PARAMS_L(float))
{
    return checked<2500>(vcaL(VCA_ARGS_L), n8_ownOMP_vormSub_vca_32f_L, n8_ownvormSub_vca_32f_L,
                         n8_ownvormSub_vca_32f_LS2, VCA_ARGS_L);
}
VormStatus n8_vormSub_vca_64f_L(VCA_PARAMS_L(double))
{
    return checked<2500>(vcaL(VCA_ARGS_L), n8_ownOMP_vormSub_vca_64f_L, n8_ownvormSub_vca_64f_L,
                         n8_ownvormSub_vca_64f_LS2, VCA_ARGS_L);
}
VormStatus n8_vormSub_vca_32f_P(VCA_PARAMS_P(float))
{
    return checked<1500>(vcaP(VCA_ARGS_P), n8_ownOMP_vormSub_vca_32f_P, n8_ownvormSub_vca_32f_P, VCA_ARGS_P);
}
VormStatus n8_vormSub_vca_64f_P(VCA_PARAMS_P(double))
{
    return checked<1500>(vcaP(VCA_ARGS_P), n8_ownOMP_vormSub_vca_64f_P, n8_ownvormSub_vca_64f_P, VCA_ARGS_P);
}

VormStatus n8_ownvormSub_vca_32f_S2(VCA_PARAMS(float)) { return anyStrideKernel<Sub>(vca(VCA_ARGS)); }
VormStatus n8_ownvormSub_vca_64f_S2(VCA_PARAMS(double)) { return anyStrideKernel<Sub>(vca(VCA_ARGS)); }
VormStatus n8_ownvormSub_vca_32f_LS2(VCA_PARAMS_L(float)) { return anyStrideKernel<Sub>(vcaL(VCA_ARGS_L)); }
VormStatus n8_ownvormSub_vca_64f_LS2(VCA_PARAMS_L(double)) { return anyStrideKernel<Sub>(vcaL(VCA_ARGS_L)); }
VormStatus n8_ownvormSub_vca_32f_P(VCA_PARAMS_P(float)) { return pointerKernel<Sub>(vcaP(VCA_ARGS_P)); }
VormStatus n8_ownvormSub_vca_64f_P(VCA_PARAMS_P(double)) { return pointerKernel<Sub>(vcaP(VCA_ARGS_P)); }
}
