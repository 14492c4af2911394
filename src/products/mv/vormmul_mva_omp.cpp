// vormMul_mva: team-parallel drivers.

#include "frame/driver.hpp"
#include "products/shapes/mva.hpp"

using namespace vorm;
using namespace vorm::products;

extern "C" {

VormStatus n8_ownOMP_vormMul_mva_32f(MVA_PARAMS(float))
{
    return team(mva<AsStored>(MVA_ARGS), n8_ownvormMul_mva_32f, n8_ownvormMul_mva_32f_S2);
}
VormStatus n8_ownOMP_vormMul_mva_64f(MVA_PARAMS(double))
{
    return team(mva<AsStored>(MVA_ARGS), n8_ownvormMul_mva_64f, n8_ownvormMul_mva_64f_S2);
}
VormStatus n8_ownOMP_vormMul_mva_32f_L(MVA_PARAMS_L(float))
{
    return team(mvaL<AsStored>(MVA_ARGS_L), n8_ownvormMul_mva_32f_L, n8_ownvormMul_mva_32f_LS2);
}
VormStatus n8_ownOMP_vormMul_mva_64f_L(MVA_PARAMS_L(double))
{
    return team(mvaL<AsStored>(MVA_ARGS_L), n8_ownvormMul_mva_64f_L, n8_ownvormMul_mva_64f_LS2);
}
VormStatus n8_ownOMP_vormMul_mva_32f_P(MVA_PARAMS_P(float))
{
    return team(mvaP<AsStored>(MVA_ARGS_P), n8_ownvormMul_mva_32f_P);
}
VormStatus n8_ownOMP_vormMul_mva_64f_P(MVA_PARAMS_P(double))
{
    return team(mvaP<AsStored>(MVA_ARGS_P), n8_ownvormMul_mva_64f_P);
}
}
