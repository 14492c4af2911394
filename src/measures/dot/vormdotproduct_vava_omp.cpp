// vormDotProduct_vava: team-parallel drivers.

#include "frame/driver.hpp"
#include "measures/dot/dot.hpp"

using namespace vorm;
using namespace vorm::measures;

extern "C" {

VormStatus n8_ownOMP_vormDotProduct_vava_32f(DOT_VAVA_PARAMS(float))
{
    return team(dotVava(DOT_VAVA_ARGS), n8_ownvormDotProduct_vava_32f, n8_ownvormDotProduct_vava_32f_S2);
}
VormStatus n8_ownOMP_vormDotProduct_vava_64f(DOT_VAVA_PARAMS(double))
{
    return team(dotVava(DOT_VAVA_ARGS), n8_ownvormDotProduct_vava_64f, n8_ownvormDotProduct_vava_64f_S2);
}
VormStatus n8_ownOMP_vormDotProduct_vava_32f_L(DOT_VAVA_PARAMS_L(float))
{
    return team(dotVavaL(DOT_VAVA_ARGS_L), n8_ownvormDotProduct_vava_32f_L, n8_ownvormDotProduct_vava_32f_LS2);
}
VormStatus n8_ownOMP_vormDotProduct_vava_64f_L(DOT_VAVA_PARAMS_L(double))
{
    return team(dotVavaL(DOT_VAVA_ARGS_L), n8_ownvormDotProduct_vava_64f_L, n8_ownvormDotProduct_vava_64f_LS2);
}
VormStatus n8_ownOMP_vormDotProduct_vava_32f_P(DOT_VAVA_PARAMS_P(float))
{
    return team(dotVavaP(DOT_VAVA_ARGS_P), n8_ownvormDotProduct_vava_32f_P);
}
VormStatus n8_ownOMP_vormDotProduct_vava_64f_P(DOT_VAVA_PARAMS_P(double))
{
    return team(dotVavaP(DOT_VAVA_ARGS_P), n8_ownvormDotProduct_vava_64f_P);
}
}
