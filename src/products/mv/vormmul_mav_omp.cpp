// vormMul_mav: team-parallel drivers.

#include "frame/driver.hpp"
#include "products/shapes/mav.hpp"

using namespace vorm;
using namespace vorm::products;

extern "C" {

VormStatus n8_ownOMP_vormMul_mav_32f(MAV_PARAMS(float))
{
    return team(mav<AsStored>(MAV_ARGS), n8_ownvormMul_mav_32f, n8_ownvormMul_mav_32f_S2);
}
VormStatus n8_ownOMP_vormMul_mav_64f(MAV_PARAMS(double))
{
    return team(mav<AsStored>(MAV_ARGS), n8_ownvormMul_mav_64f, n8_ownvormMul_mav_64f_S2);
}
VormStatus n8_ownOMP_vormMul_mav_32f_L(MAV_PARAMS_L(float))
{
    return team(mavL<AsStored>(MAV_ARGS_L), n8_ownvormMul_mav_32f_L, n8_ownvormMul_mav_32f_LS2);
}
VormStatus n8_ownOMP_vormMul_mav_64f_L(MAV_PARAMS_L(double))
{
    return team(mavL<AsStored>(MAV_ARGS_L), n8_ownvormMul_mav_64f_L, n8_ownvormMul_mav_64f_LS2);
}
VormStatus n8_ownOMP_vormMul_mav_32f_P(MAV_PARAMS_P(float))
{
    return team(mavP<AsStored>(MAV_ARGS_P), n8_ownvormMul_mav_32f_P);
}
VormStatus n8_ownOMP_vormMul_mav_64f_P(MAV_PARAMS_P(double))
{
    return team(mavP<AsStored>(MAV_ARGS_P), n8_ownvormMul_mav_64f_P);
}
}
