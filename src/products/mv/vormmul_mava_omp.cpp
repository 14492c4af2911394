// vormMul_mava: team-parallel drivers.

#include "frame/driver.hpp"
#include "products/shapes/mava.hpp"

using namespace vorm;
using namespace vorm::products;

extern "C" {

VormStatus n8_ownOMP_vormMul_mava_32f(MAVA_PARAMS(float))
{
    return team(mava<AsStored>(MAVA_ARGS), n8_ownvormMul_mava_32f, n8_ownvormMul_mava_32f_S2);
}
VormStatus n8_ownOMP_vormMul_mava_64f(MAVA_PARAMS(double))
{
    return team(mava<AsStored>(MAVA_ARGS), n8_ownvormMul_mava_64f, n8_ownvormMul_mava_64f_S2);
}
VormStatus n8_ownOMP_vormMul_mava_32f_L(MAVA_PARAMS_L(float))
{
    return team(mavaL<AsStored>(MAVA_ARGS_L), n8_ownvormMul_mava_32f_L, n8_ownvormMul_mava_32f_LS2);
}
VormStatus n8_ownOMP_vormMul_mava_64f_L(MAVA_PARAMS_L(double))
{
    return team(mavaL<AsStored>(MAVA_ARGS_L), n8_ownvormMul_mava_64f_L, n8_ownvormMul_mava_64f_LS2);
}
VormStatus n8_ownOMP_vormMul_mava_32f_P(MAVA_PARAMS_P(float))
{
    return team(mavaP<AsStored>(MAVA_ARGS_P), n8_ownvormMul_mava_32f_P);
}
VormStatus n8_ownOMP_vormMul_mava_64f_P(MAVA_PARAMS_P(double))
{
    return team(mavaP<AsStored>(MAVA_ARGS_P), n8_ownvormMul_mava_64f_P);
}
}
