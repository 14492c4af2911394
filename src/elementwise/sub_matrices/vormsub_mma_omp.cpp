// vormSub_mma: team-parallel drivers.

#include "elementwise/shapes/mma.hpp"
#include "frame/driver.hpp"

using namespace vorm;
using namespace vorm::elementwise;

extern "C" {

VormStatus n8_ownOMP_vormSub_mma_32f(MMA_PARAMS(float))
{
    return team(mma<Mm>(MMA_ARGS), n8_ownvormSub_mma_32f, n8_ownvormSub_mma_32f_S2);
}
VormStatus n8_ownOMP_vormSub_mma_64f(MMA_PARAMS(double))
{
    return team(mma<Mm>(MMA_ARGS), n8_ownvormSub_mma_64f, n8_ownvormSub_mma_64f_S2);
}
VormStatus n8_ownOMP_vormSub_mma_32f_L(MMA_PARAMS_L(float))
{
    return team(mmaL<Mm>(MMA_ARGS_L), n8_ownvormSub_mma_32f_L, n8_ownvormSub_mma_32f_LS2);
}
VormStatus n8_ownOMP_vormSub_mma_64f_L(MMA_PARAMS_L(double))
{
    return team(mmaL<Mm>(MMA_ARGS_L), n8_ownvormSub_mma_64f_L, n8_ownvormSub_mma_64f_LS2);
}
VormStatus n8_ownOMP_vormSub_mma_32f_P(MMA_PARAMS_P(float))
{
    return team(mmaP<Mm>(MMA_ARGS_P), n8_ownvormSub_mma_32f_P);
}
VormStatus n8_ownOMP_vormSub_mma_64f_P(MMA_PARAMS_P(double))
{
    return team(mmaP<Mm>(MMA_ARGS_P), n8_ownvormSub_mma_64f_P);
}
}
