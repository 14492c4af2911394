// vormSub_mata: team-parallel drivers.

#include "elementwise/shapes/mama.hpp"
#include "frame/driver.hpp"

using namespace vorm;
using namespace vorm::elementwise;

extern "C" {

VormStatus n8_ownOMP_vormSub_mata_32f(MAMA_PARAMS(float))
{
    return team(mama<Mt>(MAMA_ARGS), n8_ownvormSub_mata_32f, n8_ownvormSub_mata_32f_S2);
}
VormStatus n8_ownOMP_vormSub_mata_64f(MAMA_PARAMS(double))
{
    return team(mama<Mt>(MAMA_ARGS), n8_ownvormSub_mata_64f, n8_ownvormSub_mata_64f_S2);
}
VormStatus n8_ownOMP_vormSub_mata_32f_L(MAMA_PARAMS_L(float))
{
    return team(mamaL<Mt>(MAMA_ARGS_L), n8_ownvormSub_mata_32f_L, n8_ownvormSub_mata_32f_LS2);
}
VormStatus n8_ownOMP_vormSub_mata_64f_L(MAMA_PARAMS_L(double))
{
    return team(mamaL<Mt>(MAMA_ARGS_L), n8_ownvormSub_mata_64f_L, n8_ownvormSub_mata_64f_LS2);
}
VormStatus n8_ownOMP_vormSub_mata_32f_P(MAMA_PARAMS_P(float))
{
    return team(mamaP<Mt>(MAMA_ARGS_P), n8_ownvormSub_mata_32f_P);
}
VormStatus n8_ownOMP_vormSub_mata_64f_P(MAMA_PARAMS_P(double))
{
    return team(mamaP<Mt>(MAMA_ARGS_P), n8_ownvormSub_mata_64f_P);
}
}
