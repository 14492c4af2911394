// vormMul_vca: team-parallel drivers.

#include "frame/driver.hpp"
#include "products/constants/shapes.hpp"

using namespace vorm;
using namespace vorm::elementwise;

extern "C" {

VormStatus n8_ownOMP_vormMul_vca_32f(VCA_PARAMS(float))
{
    return team(vca(VCA_ARGS), n8_ownvormMul_vca_32f, n8_ownvormMul_vca_32f_S2);
}
VormStatus n8_ownOMP_vormMul_vca_64f(VCA_PARAMS(double))
{
    return team(vca(VCA_ARGS), n8_ownvormMul_vca_64f, n8_ownvormMul_vca_64f_S2);
}
VormStatus n8_ownOMP_vormMul_vca_32f_L(VCA_PARAMS_L(float))
{
    return team(vcaL(VCA_ARGS_L), n8_ownvormMul_vca_32f_L, n8_ownvormMul_vca_32f_LS2);
}
VormStatus n8_ownOMP_vormMul_vca_64f_L(VCA_PARAMS_L(double))
{
    return team(vcaL(VCA_ARGS_L), n8_ownvormMul_vca_64f_L, n8_ownvormMul_vca_64f_LS2);
}
VormStatus n8_ownOMP_vormMul_vca_32f_P(VCA_PARAMS_P(float)) { return team(vcaP(VCA_ARGS_P), n8_ownvormMul_vca_32f_P); }
VormStatus n8_ownOMP_vormMul_vca_64f_P(VCA_PARAMS_P(double)) { return team(vcaP(VCA_ARGS_P), n8_ownvormMul_vca_64f_P); }
}
