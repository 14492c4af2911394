// vormSub_mta: team-parallel drivers.

#include "elementwise/shapes/mma.hpp"
#include "frame/driver.hpp"

using namespace vorm;
using namespace vorm::elementwise;

extern "C" {

VormStatus n8_ownOMP_vormSub_mta_32f(MMA_PARAMS(float))
{
    return team(mma<Mt>(MMA_ARGS), n8_ownvormSub_mta_32f, n8_ownvormSub_mta_32f_S2);
}
VormStatus n8_ownOMP_vormSub_mta_64f(MMA_PARAMS(double))
{
    return team(mma<Mt>(MMA_ARGS), n8_ownvormSub_mta_64f, n8_ownvormSub_mta_64f_S2);
}
VormStatus n8_ownOMP_vormSub_mta_32f_L(MMA_PARAMS_L(float))
{
    return team(mmaL<Mt>(MMA_ARGS_L), n8_ownvormSub_mta_32f_L, n8_ownvormSub_mta_32f_LS2);
}
VormStatus n8_ownOMP_vormSub_mta_64f_L(MMA_PARAMS_L(double))
{
    return team(mmaL<Mt>(MMA_ARGS_L), n8_ownvormSub_mta_64f_L, n8_ownvormSub_mta_64f_LS2);
}
VormStatus n8_ownOMP_vormSub_mta_32f_P(MMA_PARAMS_P(float))
{
    return team(mmaP<Mt>(MMA_ARGS_P), n8_ownvormSub_mta_32f_P);
}
VormStatus n8_ownOMP_vormSub_mta_64f_P(MMA_PARAMS_P(double))
{
    return team(mmaP<Mt>(MMA_ARGS_P), n8_ownvormSub_mta_64f_P);
}
}
