// vormDotProduct_vav: team-parallel drivers.

#include "frame/driver.hpp"
#include "measures/dot/dot.hpp"

using namespace vorm;
using namespace vorm::measures;

extern "C" {

VormStatus n8_ownOMP_vormDotProduct_vav_32f(DOT_VAV_PARAMS(float))
{
    return team(dotVav(DOT_VAV_ARGS), n8_ownvormDotProduct_vav_32f, n8_ownvormDotProduct_vav_32f_S2);
}
VormStatus n8_ownOMP_vormDotProduct_vav_64f(DOT_VAV_PARAMS(double))
{
    return team(dotVav(DOT_VAV_ARGS), n8_ownvormDotProduct_vav_64f, n8_ownvormDotProduct_vav_64f_S2);
}
VormStatus n8_ownOMP_vormDotProduct_vav_32f_L(DOT_VAV_PARAMS_L(float))
{
    return team(dotVavL(DOT_VAV_ARGS_L), n8_ownvormDotProduct_vav_32f_L, n8_ownvormDotProduct_vav_32f_LS2);
}
VormStatus n8_ownOMP_vormDotProduct_vav_64f_L(DOT_VAV_PARAMS_L(double))
{
    return team(dotVavL(DOT_VAV_ARGS_L), n8_ownvormDotProduct_vav_64f_L, n8_ownvormDotProduct_vav_64f_LS2);
}
VormStatus n8_ownOMP_vormDotProduct_vav_32f_P(DOT_VAV_PARAMS_P(float))
{
    return team(dotVavP(DOT_VAV_ARGS_P), n8_ownvormDotProduct_vav_32f_P);
}
VormStatus n8_ownOMP_vormDotProduct_vav_64f_P(DOT_VAV_PARAMS_P(double))
{
    return team(dotVavP(DOT_VAV_ARGS_P), n8_ownvormDotProduct_vav_64f_P);
}
}
