// vormSub_tama: team-parallel drivers.

#include "elementwise/shapes/mama.hpp"
#include "frame/driver.hpp"

using namespace vorm;
using namespace vorm::elementwise;

extern "C" {

VormStatus n8_ownOMP_vormSub_tama_32f(MAMA_PARAMS(float))
{
    return team(mama<Tm>(MAMA_ARGS), n8_ownvormSub_tama_32f, n8_ownvormSub_tama_32f_S2);
}
VormStatus n8_ownOMP_vormSub_tama_64f(MAMA_PARAMS(double))
{
    return team(mama<Tm>(MAMA_ARGS), n8_ownvormSub_tama_64f, n8_ownvormSub_tama_64f_S2);
}
VormStatus n8_ownOMP_vormSub_tama_32f_L(MAMA_PARAMS_L(float))
{
    return team(mamaL<Tm>(MAMA_ARGS_L), n8_ownvormSub_tama_32f_L, n8_ownvormSub_tama_32f_LS2);
}
VormStatus n8_ownOMP_vormSub_tama_64f_L(MAMA_PARAMS_L(double))
{
    return team(mamaL<Tm>(MAMA_ARGS_L), n8_ownvormSub_tama_64f_L, n8_ownvormSub_tama_64f_LS2);
}
VormStatus n8_ownOMP_vormSub_tama_32f_P(MAMA_PARAMS_P(float))
{
    return team(mamaP<Tm>(MAMA_ARGS_P), n8_ownvormSub_tama_32f_P);
}
VormStatus n8_ownOMP_vormSub_tama_64f_P(MAMA_PARAMS_P(double))
{
    return team(mamaP<Tm>(MAMA_ARGS_P), n8_ownvormSub_tama_64f_P);
}
}
