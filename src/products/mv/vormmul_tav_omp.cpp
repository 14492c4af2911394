// vormMul_tav: team-parallel drivers.

#include "frame/driver.hpp"
#include "products/shapes/mav.hpp"

using namespace vorm;
using namespace vorm::products;

extern "C" {

VormStatus n8_ownOMP_vormMul_tav_32f(MAV_PARAMS(float))
{
    return team(mav<AsTransposed>(MAV_ARGS), n8_ownvormMul_tav_32f, n8_ownvormMul_tav_32f_S2);
}
VormStatus n8_ownOMP_vormMul_tav_64f(MAV_PARAMS(double))
{
    return team(mav<AsTransposed>(MAV_ARGS), n8_ownvormMul_tav_64f, n8_ownvormMul_tav_64f_S2);
}
VormStatus n8_ownOMP_vormMul_tav_32f_L(MAV_PARAMS_L(float))
{
    return team(mavL<AsTransposed>(MAV_ARGS_L), n8_ownvormMul_tav_32f_L, n8_ownvormMul_tav_32f_LS2);
}
VormStatus n8_ownOMP_vormMul_tav_64f_L(MAV_PARAMS_L(double))
{
    return team(mavL<AsTransposed>(MAV_ARGS_L), n8_ownvormMul_tav_64f_L, n8_ownvormMul_tav_64f_LS2);
}
VormStatus n8_ownOMP_vormMul_tav_32f_P(MAV_PARAMS_P(float))
{
    return team(mavP<AsTransposed>(MAV_ARGS_P), n8_ownvormMul_tav_32f_P);
}
VormStatus n8_ownOMP_vormMul_tav_64f_P(MAV_PARAMS_P(double))
{
    return team(mavP<AsTransposed>(MAV_ARGS_P), n8_ownvormMul_tav_64f_P);
}
}
