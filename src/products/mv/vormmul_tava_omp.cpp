// vormMul_tava: team-parallel drivers.

#include "frame/driver.hpp"
#include "products/shapes/mava.hpp"

using namespace vorm;
using namespace vorm::products;

extern "C" {

VormStatus n8_ownOMP_vormMul_tava_32f(MAVA_PARAMS(float))
{
    return team(mava<AsTransposed>(MAVA_ARGS), n8_ownvormMul_tava_32f, n8_ownvormMul_tava_32f_S2);
}
VormStatus n8_ownOMP_vormMul_tava_64f(MAVA_PARAMS(double))
{
    return team(mava<AsTransposed>(MAVA_ARGS), n8_ownvormMul_tava_64f, n8_ownvormMul_tava_64f_S2);
}
VormStatus n8_ownOMP_vormMul_tava_32f_L(MAVA_PARAMS_L(float))
{
    return team(mavaL<AsTransposed>(MAVA_ARGS_L), n8_ownvormMul_tava_32f_L, n8_ownvormMul_tava_32f_LS2);
}
VormStatus n8_ownOMP_vormMul_tava_64f_L(MAVA_PARAMS_L(double))
{
    return team(mavaL<AsTransposed>(MAVA_ARGS_L), n8_ownvormMul_tava_64f_L, n8_ownvormMul_tava_64f_LS2);
}
VormStatus n8_ownOMP_vormMul_tava_32f_P(MAVA_PARAMS_P(float))
{
    return team(mavaP<AsTransposed>(MAVA_ARGS_P), n8_ownvormMul_tava_32f_P);
}
VormStatus n8_ownOMP_vormMul_tava_64f_P(MAVA_PARAMS_P(double))
{
    return team(mavaP<AsTransposed>(MAVA_ARGS_P), n8_ownvormMul_tava_64f_P);
}
}
