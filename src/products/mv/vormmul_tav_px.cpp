// vormMul_tav: public layers, and the kernels for elements anywhere.

#include "products/mav.hpp"

using namespace vorm;

extern "C" {

VormStatus n8_vormMul_tav_32f(MAV_PARAMS(float))
{
    return mavChecked<Turned, 2500>(n8_ownOMP_vormMul_tav_32f, n8_ownvormMul_tav_32f, n8_ownvormMul_tav_32f_S2,
                                    MAV_ARGS);
}
VormStatus n8_vormMul_tav_64f(MAV_PARAMS(double))
{
    return mavChecked<Turned, 3600>(n8_ownOMP_vormMul_tav_64f, n8_ownvormMul_tav_64f, n8_ownvormMul_tav_64f_S2,
                                    MAV_ARGS);
}
VormStatus n8_vormMul_tav_32f_L(MAV_PARAMS_L(float))
{
    return mavCheckedL<Turned>(n8_ownOMP_vormMul_tav_32f_L, n8_ownvormMul_tav_32f_L, n8_ownvormMul_tav_32f_LS2,
                               MAV_ARGS_L);
}
VormStatus n8_vormMul_tav_64f_L(MAV_PARAMS_L(double))
{
    return mavCheckedL<Turned>(n8_ownOMP_vormMul_tav_64f_L, n8_ownvormMul_tav_64f_L, n8_ownvormMul_tav_64f_LS2,
                               MAV_ARGS_L);
}
VormStatus n8_vormMul_tav_32f_P(MAV_PARAMS_P(float))
{
    return mavCheckedP<Turned>(n8_ownOMP_vormMul_tav_32f_P, n8_ownvormMul_tav_32f_P, MAV_ARGS_P);
}
VormStatus n8_vormMul_tav_64f_P(MAV_PARAMS_P(double))
{
    return mavCheckedP<Turned>(n8_ownOMP_vormMul_tav_64f_P, n8_ownvormMul_tav_64f_P, MAV_ARGS_P);
}

VormStatus n8_ownvormMul_tav_32f_S2(MAV_PARAMS(float)) { return mavAnyStride<Turned>(MAV_ARGS); }
VormStatus n8_ownvormMul_tav_64f_S2(MAV_PARAMS(double)) { return mavAnyStride<Turned>(MAV_ARGS); }
VormStatus n8_ownvormMul_tav_32f_LS2(MAV_PARAMS_L(float)) { return mavEachSingle(n8_ownvormMul_tv_32f_S2, MAV_ARGS_L); }
VormStatus n8_ownvormMul_tav_64f_LS2(MAV_PARAMS_L(double))
{
    return mavEachSingle(n8_ownvormMul_tv_64f_S2, MAV_ARGS_L);
}
VormStatus n8_ownvormMul_tav_32f_P(MAV_PARAMS_P(float)) { return mavPointers<Turned>(MAV_ARGS_P); }
VormStatus n8_ownvormMul_tav_64f_P(MAV_PARAMS_P(double)) { return mavPointers<Turned>(MAV_ARGS_P); }
}
