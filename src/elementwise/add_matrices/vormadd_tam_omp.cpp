// vormAdd_tam: team-parallel drivers.

#include "elementwise/shapes/mam.hpp"
#include "frame/driver.hpp"

using namespace vorm;
using namespace vorm::elementwise;

extern "C" {

VormStatus n8_ownOMP_vormAdd_tam_32f(MAM_PARAMS(float))
{
    return team(mam<Tm>(MAM_ARGS), n8_ownvormAdd_tam_32f, n8_ownvormAdd_tam_32f_S2);
}
VormStatus n8_ownOMP_vormAdd_tam_64f(MAM_PARAMS(double))
{
    return team(mam<Tm>(MAM_ARGS), n8_ownvormAdd_tam_64f, n8_ownvormAdd_tam_64f_S2);
}
VormStatus n8_ownOMP_vormAdd_tam_32f_L(MAM_PARAMS_L(float))
{
    return team(mamL<Tm>(MAM_ARGS_L), n8_ownvormAdd_tam_32f_L, n8_ownvormAdd_tam_32f_LS2);
}
VormStatus n8_ownOMP_vormAdd_tam_64f_L(MAM_PARAMS_L(double))
{
    return team(mamL<Tm>(MAM_ARGS_L), n8_ownvormAdd_tam_64f_L, n8_ownvormAdd_tam_64f_LS2);
}
VormStatus n8_ownOMP_vormAdd_tam_32f_P(MAM_PARAMS_P(float))
{
    return team(mamP<Tm>(MAM_ARGS_P), n8_ownvormAdd_tam_32f_P);
}
VormStatus n8_ownOMP_vormAdd_tam_64f_P(MAM_PARAMS_P(double))
{
    return team(mamP<Tm>(MAM_ARGS_P), n8_ownvormAdd_tam_64f_P);
}
}
