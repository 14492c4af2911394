// vormMul_vaca: team-parallel drivers.

#include "frame/driver.hpp"
#include "products/constants/shapes.hpp"

using namespace vorm;
using namespace vorm::elementwise;

extern "C" {

VormStatus n8_ownOMP_vormMul_vaca_32f(VACA_PARAMS(float))
{
    return team(vaca(VACA_ARGS), n8_ownvormMul_vaca_32f, n8_ownvormMul_vaca_32f_S2);
}
VormStatus n8_ownOMP_vormMul_vaca_64f(VACA_PARAMS(double))
{
    return team(vaca(VACA_ARGS), n8_ownvormMul_vaca_64f, n8_ownvormMul_vaca_64f_S2);
}
VormStatus n8_ownOMP_vormMul_vaca_32f_L(VACA_PARAMS_L(float))
{
    return team(vacaL(VACA_ARGS_L), n8_ownvormMul_vaca_32f_L, n8_ownvormMul_vaca_32f_LS2);
}
VormStatus n8_ownOMP_vormMul_vaca_64f_L(VACA_PARAMS_L(double))
{
    return team(vacaL(VACA_ARGS_L), n8_ownvormMul_vaca_64f_L, n8_ownvormMul_vaca_64f_LS2);
}
VormStatus n8_ownOMP_vormMul_vaca_32f_P(VACA_PARAMS_P(float))
{
    return team(vacaP(VACA_ARGS_P), n8_ownvormMul_vaca_32f_P);
}
VormStatus n8_ownOMP_vormMul_vaca_64f_P(VACA_PARAMS_P(double))
{
    return team(vacaP(VACA_ARGS_P), n8_ownvormMul_vaca_64f_P);
}
}
