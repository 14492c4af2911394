// vormAdd_vav: public layers, and the kernels for elements anywhere.

#include "elementwise/vav.hpp"

using namespace vorm;

extern "C" {

VormStatus n8_vormAdd_vav_32f(VAV_PARAMS(float))
{
    return vavChecked<4800>(n8_ownOMP_vormAdd_vav_32f, n8_ownvormAdd_vav_32f, n8_ownvormAdd_vav_32f_S2, VAV_ARGS);
}
VormStatus n8_vormAdd_vav_64f(VAV_PARAMS(double))
{
    return vavChecked<1400>(n8_ownOMP_vormAdd_vav_64f, n8_ownvormAdd_vav_64f, n8_ownvormAdd_vav_64f_S2, VAV_ARGS);
}
VormStatus n8_vormAdd_vav_32f_L(VAV_PARAMS_L(float))
{
    return vavCheckedL<2500>(n8_ownOMP_vormAdd_vav_32f_L, n8_ownvormAdd_vav_32f_L, n8_ownvormAdd_vav_32f_LS2,
                             VAV_ARGS_L);
}
VormStatus n8_vormAdd_vav_64f_L(VAV_PARAMS_L(double))
{
    return vavCheckedL<2500>(n8_ownOMP_vormAdd_vav_64f_L, n8_ownvormAdd_vav_64f_L, n8_ownvormAdd_vav_64f_LS2,
                             VAV_ARGS_L);
}
VormStatus n8_vormAdd_vav_32f_P(VAV_PARAMS_P(float))
{
    return vavCheckedP<1500>(n8_ownOMP_vormAdd_vav_32f_P, n8_ownvormAdd_vav_32f_P, VAV_ARGS_P);
}
VormStatus n8_vormAdd_vav_64f_P(VAV_PARAMS_P(double))
{
    return vavCheckedP<1500>(n8_ownOMP_vormAdd_vav_64f_P, n8_ownvormAdd_vav_64f_P, VAV_ARGS_P);
}

VormStatus n8_ownvormAdd_vav_32f_S2(VAV_PARAMS(float)) { return vavAnyStride<Add>(VAV_ARGS); }
VormStatus n8_ownvormAdd_vav_64f_S2(VAV_PARAMS(double)) { return vavAnyStride<Add>(VAV_ARGS); }
VormStatus n8_ownvormAdd_vav_32f_LS2(VAV_PARAMS_L(float)) { return vavEachSingle(n8_ownvormAdd_vv_32f_S2, VAV_ARGS_L); }
VormStatus n8_ownvormAdd_vav_64f_LS2(VAV_PARAMS_L(double))
{
    return vavEachSingle(n8_ownvormAdd_vv_64f_S2, VAV_ARGS_L);
}
VormStatus n8_ownvormAdd_vav_32f_P(VAV_PARAMS_P(float)) { return vavPointers<Add>(VAV_ARGS_P); }
VormStatus n8_ownvormAdd_vav_64f_P(VAV_PARAMS_P(double)) { return vavPointers<Add>(VAV_ARGS_P); }
}
