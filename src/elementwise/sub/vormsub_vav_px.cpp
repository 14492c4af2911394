// vormSub_vav: public layers, and the kernels for elements anywhere.

#include "elementwise/calls.hpp"
#include "elementwise/shapes/vav.hpp"

using namespace vorm;
using namespace vorm::elementwise;

extern "C" {

VormStatus n8_vormSub_vav_32f(VAV_PARAMS(float))
{
    return checked<4800>(vav(VAV_ARGS), n8_ownOMP_vormSub_vav_32f, n8_ownvormSub_vav_32f, n8_ownvormSub_vav_32f_S2,
                         VAV_ARGS);
}
VormStatus n8_vormSub_vav_64f(VAV_PARAMS(double))
{
    return checked<1400>(vav(VAV_ARGS), n8_ownOMP_vormSub_vav_64f, n8_ownvormSub_vav_64f, n8_ownvormSub_vav_64f_S2,
                         VAV_ARGS);
}
VormStatus n8_vormSub_vav_32f_L(VAV_PARAMS_L(float))
{
    return checked<2500>(vavL(VAV_ARGS_L), n8_ownOMP_vormSub_vav_32f_L, n8_ownvormSub_vav_32f_L,
                         n8_ownvormSub_vav_32f_LS2, VAV_ARGS_L);
}
VormStatus n8_vormSub_vav_64f_L(VAV_PARAMS_L(double))
{
    return checked<2500>(vavL(VAV_ARGS_L), n8_ownOMP_vormSub_vav_64f_L, n8_ownvormSub_vav_64f_L,
                         n8_ownvormSub_vav_64f_LS2, VAV_ARGS_L);
}
VormStatus n8_vormSub_vav_32f_P(VAV_PARAMS_P(float))
{
    return checked<1500>(vavP(VAV_ARGS_P), n8_ownOMP_vormSub_vav_32f_P, n8_ownvormSub_vav_32f_P, VAV_ARGS_P);
}
VormStatus n8_vormSub_vav_64f_P(VAV_PARAMS_P(double))
{
    return checked<1500>(vavP(VAV_ARGS_P), n8_ownOMP_vormSub_vav_64f_P, n8_ownvormSub_vav_64f_P, VAV_ARGS_P);
}

VormStatus n8_ownvormSub_vav_32f_S2(VAV_PARAMS(float)) { return anyStrideKernel<Sub>(vav(VAV_ARGS)); }
VormStatus n8_ownvormSub_vav_64f_S2(VAV_PARAMS(double)) { return anyStrideKernel<Sub>(vav(VAV_ARGS)); }
VormStatus n8_ownvormSub_vav_32f_LS2(VAV_PARAMS_L(float))
{
    return eachSingle(vavL(VAV_ARGS_L), n8_ownvormSub_vv_32f_S2);
}
VormStatus n8_ownvormSub_vav_64f_LS2(VAV_PARAMS_L(double))
{
    return eachSingle(vavL(VAV_ARGS_L), n8_ownvormSub_vv_64f_S2);
}
VormStatus n8_ownvormSub_vav_32f_P(VAV_PARAMS_P(float)) { return pointerKernel<Sub>(vavP(VAV_ARGS_P)); }
VormStatus n8_ownvormSub_vav_64f_P(VAV_PARAMS_P(double)) { return pointerKernel<Sub>(vavP(VAV_ARGS_P)); }
}
