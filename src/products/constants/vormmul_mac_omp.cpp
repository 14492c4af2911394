// vormMul_mac: team-parallel drivers.

#include "frame/driver.hpp"
#include "products/shapes/mac.hpp"

using namespace vorm;
using namespace vorm::products;

extern "C" {

VormStatus n8_ownOMP_vormMul_mac_32f(MAC_PARAMS(float))
{
    return team(mac<AsStored>(MAC_ARGS), n8_ownvormMul_mac_32f, n8_ownvormMul_mac_32f_S2);
}
VormStatus n8_ownOMP_vormMul_mac_64f(MAC_PARAMS(double))
{
    return team(mac<AsStored>(MAC_ARGS), n8_ownvormMul_mac_64f, n8_ownvormMul_mac_64f_S2);
}
VormStatus n8_ownOMP_vormMul_mac_32f_L(MAC_PARAMS_L(float))
{
    return team(macL<AsStored>(MAC_ARGS_L), n8_ownvormMul_mac_32f_L, n8_ownvormMul_mac_32f_LS2);
}
VormStatus n8_ownOMP_vormMul_mac_64f_L(MAC_PARAMS_L(double))
{
    return team(macL<AsStored>(MAC_ARGS_L), n8_ownvormMul_mac_64f_L, n8_ownvormMul_mac_64f_LS2);
}
VormStatus n8_ownOMP_vormMul_mac_32f_P(MAC_PARAMS_P(float))
{
    return team(macP<AsStored>(MAC_ARGS_P), n8_ownvormMul_mac_32f_P);
}
VormStatus n8_ownOMP_vormMul_mac_64f_P(MAC_PARAMS_P(double))
{
    return team(macP<AsStored>(MAC_ARGS_P), n8_ownvormMul_mac_64f_P);
}
}
