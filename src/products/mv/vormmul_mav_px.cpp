// vormMul_mav: public layers, and the kernels for elements anywhere.

#include "products/shapes/mav.hpp"
#include "products/vector_calls.hpp"

using namespace vorm;
using namespace vorm::products;

extern "C" {

VormStatus n8_vormMul_mav_32f(MAV_PARAMS(float))
{
    return checked<2500, teamLimitAnyStride>(mav<AsStored>(MAV_ARGS), n8_ownOMP_vormMul_mav_32f, n8_ownvormMul_mav_32f,
                                             n8_ownvormMul_mav_32f_S2, MAV_ARGS);
}
VormStatus n8_vormMul_mav_64f(MAV_PARAMS(double))
{
    return checked<3600, teamLimitAnyStride>(mav<AsStored>(MAV_ARGS), n8_ownOMP_vormMul_mav_64f, n8_ownvormMul_mav_64f,
                                             n8_ownvormMul_mav_64f_S2, MAV_ARGS);
}
VormStatus n8_vormMul_mav_32f_L(MAV_PARAMS_L(float))
{
    return checked<teamLimitList, teamLimitAnyStride>(mavL<AsStored>(MAV_ARGS_L), n8_ownOMP_vormMul_mav_32f_L,
                                                      n8_ownvormMul_mav_32f_L, n8_ownvormMul_mav_32f_LS2, MAV_ARGS_L);
}
VormStatus n8_vormMul_mav_64f_L(MAV_PARAMS_L(double))
{
    return checked<teamLimitList, teamLimitAnyStride>(mavL<AsStored>(MAV_ARGS_L), n8_ownOMP_vormMul_mav_64f_L,
                                                      n8_ownvormMul_mav_64f_L, n8_ownvormMul_mav_64f_LS2, MAV_ARGS_L);
}
VormStatus n8_vormMul_mav_32f_P(MAV_PARAMS_P(float))
{
    return checked<teamLimitPointers>(mavP<AsStored>(MAV_ARGS_P), n8_ownOMP_vormMul_mav_32f_P, n8_ownvormMul_mav_32f_P,
                                      MAV_ARGS_P);
}
VormStatus n8_vormMul_mav_64f_P(MAV_PARAMS_P(double))
{
    return checked<teamLimitPointers>(mavP<AsStored>(MAV_ARGS_P), n8_ownOMP_vormMul_mav_64f_P, n8_ownvormMul_mav_64f_P,
                                      MAV_ARGS_P);
}

VormStatus n8_ownvormMul_mav_32f_S2(MAV_PARAMS(float)) { return anyStrideKernel<AsStored>(mav<AsStored>(MAV_ARGS)); }
VormStatus n8_ownvormMul_mav_64f_S2(MAV_PARAMS(double)) { return anyStrideKernel<AsStored>(mav<AsStored>(MAV_ARGS)); }
VormStatus n8_ownvormMul_mav_32f_LS2(MAV_PARAMS_L(float))
{
    return eachSingle(mavL<AsStored>(MAV_ARGS_L), n8_ownvormMul_mv_32f_S2);
}
VormStatus n8_ownvormMul_mav_64f_LS2(MAV_PARAMS_L(double))
{
    return eachSingle(mavL<AsStored>(MAV_ARGS_L), n8_ownvormMul_mv_64f_S2);
}
VormStatus n8_ownvormMul_mav_32f_P(MAV_PARAMS_P(float)) { return pointerKernel<AsStored>(mavP<AsStored>(MAV_ARGS_P)); }
VormStatus n8_ownvormMul_mav_64f_P(MAV_PARAMS_P(double)) { return pointerKernel<AsStored>(mavP<AsStored>(MAV_ARGS_P)); }
}
