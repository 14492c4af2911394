// vormSub_vav: team-parallel drivers.

#include "elementwise/shapes/vav.hpp"
#include "frame/driver.hpp"

using namespace vorm;
using namespace vorm::elementwise;

extern "C" {

VormStatus n8_ownOMP_vormSub_vav_32f(VAV_PARAMS(float))
{
    return team(vav(VAV_ARGS), n8_ownvormSub_vav_32f, n8_ownvormSub_vav_32f_S2);
}
VormStatus n8_ownOMP_vormSub_vav_64f(VAV_PARAMS(double))
{
    return team(vav(VAV_ARGS), n8_ownvormSub_vav_64f, n8_ownvormSub_vav_64f_S2);
}
VormStatus n8_ownOMP_vormSub_vav_32f_L(VAV_PARAMS_L(float))
{
    return team(vavL(VAV_ARGS_L), n8_ownvormSub_vav_32f_L, n8_ownvormSub_vav_32f_LS2);
}
VormStatus n8_ownOMP_vormSub_vav_64f_L(VAV_PARAMS_L(double))
{
    return team(vavL(VAV_ARGS_L), n8_ownvormSub_vav_64f_L, n8_ownvormSub_vav_64f_LS2);
}
VormStatus n8_ownOMP_vormSub_vav_32f_P(VAV_PARAMS_P(float)) { return team(vavP(VAV_ARGS_P), n8_ownvormSub_vav_32f_P); }
VormStatus n8_ownOMP_vormSub_vav_64f_P(VAV_PARAMS_P(double)) { return team(vavP(VAV_ARGS_P), n8_ownvormSub_vav_64f_P); }
}
