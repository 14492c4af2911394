// vormMul_vac: team-parallel drivers.

#include "frame/driver.hpp"
#include "products/constants/shapes.hpp"

using namespace vorm;
using namespace vorm::elementwise;

extern "C" {

VormStatus n8_ownOMP_vormMul_vac_32f(VAC_PARAMS(float))
{
    return team(vac(VAC_ARGS), n8_ownvormMul_vac_32f, n8_ownvormMul_vac_32f_S2);
}
VormStatus n8_ownOMP_vormMul_vac_64f(VAC_PARAMS(double))
{
    return team(vac(VAC_ARGS), n8_ownvormMul_vac_64f, n8_ownvormMul_vac_64f_S2);
}
VormStatus n8_ownOMP_vormMul_vac_32f_L(VAC_PARAMS_L(float))
{
    return team(vacL(VAC_ARGS_L), n8_ownvormMul_vac_32f_L, n8_ownvormMul_vac_32f_LS2);
}
VormStatus n8_ownOMP_vormMul_vac_64f_L(VAC_PARAMS_L(double))
{
    return team(vacL(VAC_ARGS_L), n8_ownvormMul_vac_64f_L, n8_ownvormMul_vac_64f_LS2);
}
VormStatus n8_ownOMP_vormMul_vac_32f_P(VAC_PARAMS_P(float)) { return team(vacP(VAC_ARGS_P), n8_ownvormMul_vac_32f_P); }
VormStatus n8_ownOMP_vormMul_vac_64f_P(VAC_PARAMS_P(double)) { return team(vacP(VAC_ARGS_P), n8_ownvormMul_vac_64f_P); }
}
