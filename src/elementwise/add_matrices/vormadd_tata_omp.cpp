// vormAdd_tata: team-parallel drivers.

#include "elementwise/shapes/mama.hpp"
#include "frame/driver.hpp"

using namespace vorm;
using namespace vorm::elementwise;

extern "C" {

VormStatus n8_ownOMP_vormAdd_tata_32f(MAMA_PARAMS(float))
{
    return team(mama<Tt>(MAMA_ARGS), n8_ownvormAdd_tata_32f, n8_ownvormAdd_tata_32f_S2);
}
VormStatus n8_ownOMP_vormAdd_tata_64f(MAMA_PARAMS(double))
{
    return team(mama<Tt>(MAMA_ARGS), n8_ownvormAdd_tata_64f, n8_ownvormAdd_tata_64f_S2);
}
VormStatus n8_ownOMP_vormAdd_tata_32f_L(MAMA_PARAMS_L(float))
{
    return team(mamaL<Tt>(MAMA_ARGS_L), n8_ownvormAdd_tata_32f_L, n8_ownvormAdd_tata_32f_LS2);
}
VormStatus n8_ownOMP_vormAdd_tata_64f_L(MAMA_PARAMS_L(double))
{
    return team(mamaL<Tt>(MAMA_ARGS_L), n8_ownvormAdd_tata_64f_L, n8_ownvormAdd_tata_64f_LS2);
}
VormStatus n8_ownOMP_vormAdd_tata_32f_P(MAMA_PARAMS_P(float))
{
    return team(mamaP<Tt>(MAMA_ARGS_P), n8_ownvormAdd_tata_32f_P);
}
VormStatus n8_ownOMP_vormAdd_tata_64f_P(MAMA_PARAMS_P(double))
{
    return team(mamaP<Tt>(MAMA_ARGS_P), n8_ownvormAdd_tata_64f_P);
}
}
