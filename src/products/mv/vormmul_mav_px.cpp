// vormMul_mav: public layers, and the kernels for elements anywhere.

#include "products/mav.hpp"

using namespace vorm;

extern "C" {

VormStatus n8_vormMul_mav_32f(MAV_PARAMS(float))
{
    return mavChecked<AsStored, 2500>(n8_ownOMP_vormMul_mav_32f, n8_ownvormMul_mav_32f, n8_ownvormMul_mav_32f_S2,
                                      MAV_ARGS);
}
VormStatus n8_vormMul_mav_64f(MAV_PARAMS(double))
{
    return mavChecked<AsStored, 3600>(n8_ownOMP_vormMul_mav_64f, n8_ownvormMul_mav_64f, n8_ownvormMul_mav_64f_S2,
                                      MAV_ARGS);
}
VormStatus n8_vormMul_mav_32f_L(MAV_PARAMS_L(float))
{
    return mavCheckedL<AsStored>(n8_ownOMP_vormMul_mav_32f_L, n8_ownvormMul_mav_32f_L, n8_ownvormMul_mav_32f_LS2,
                                 MAV_ARGS_L);
}
VormStatus n8_vormMul_mav_64f_L(MAV_PARAMS_L(double))
{
    return mavCheckedL<AsStored>(n8_ownOMP_vormMul_mav_64f_L, n8_ownvormMul_mav_64f_L, n8_ownvormMul_mav_64f_LS2,
                                 MAV_ARGS_L);
}
VormStatus n8_vormMul_mav_32f_P(MAV_PARAMS_P(float))
{
    return mavCheckedP<AsStored>(n8_ownOMP_vormMul_mav_32f_P, n8_ownvormMul_mav_32f_P, MAV_ARGS_P);
}
VormStatus n8_vormMul_mav_64f_P(MAV_PARAMS_P(double))
{
    return mavCheckedP<AsStored>(n8_ownOMP_vormMul_mav_64f_P, n8_ownvormMul_mav_64f_P, MAV_ARGS_P);
}

VormStatus n8_ownvormMul_mav_32f_S2(MAV_PARAMS(float)) { return mavAnyStride<AsStored>(MAV_ARGS); }
VormStatus n8_ownvormMul_mav_64f_S2(MAV_PARAMS(double)) { return mavAnyStride<AsStored>(MAV_ARGS); }
VormStatus n8_ownvormMul_mav_32f_LS2(MAV_PARAMS_L(float)) { return mavEachSingle(n8_ownvormMul_mv_32f_S2, MAV_ARGS_L); }
VormStatus n8_ownvormMul_mav_64f_LS2(MAV_PARAMS_L(double))
{
    return mavEachSingle(n8_ownvormMul_mv_64f_S2, MAV_ARGS_L);
}
VormStatus n8_ownvormMul_mav_32f_P(MAV_PARAMS_P(float)) { return mavPointers<AsStored>(MAV_ARGS_P); }
VormStatus n8_ownvormMul_mav_64f_P(MAV_PARAMS_P(double)) { return mavPointers<AsStored>(MAV_ARGS_P); }
}
