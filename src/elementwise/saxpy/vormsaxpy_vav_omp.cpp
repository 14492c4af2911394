// vormSaxpy_vav: team-parallel drivers.

#include "elementwise/shapes/saxpy_vav.hpp"
#include "frame/driver.hpp"

using namespace vorm;
using namespace vorm::elementwise;

extern "C" {

VormStatus n8_ownOMP_vormSaxpy_vav_32f(SAXPY_VAV_PARAMS(float))
{
    return team(saxpyVav(SAXPY_VAV_ARGS), n8_ownvormSaxpy_vav_32f, n8_ownvormSaxpy_vav_32f_S2);
}
VormStatus n8_ownOMP_vormSaxpy_vav_64f(SAXPY_VAV_PARAMS(double))
{
    return team(saxpyVav(SAXPY_VAV_ARGS), n8_ownvormSaxpy_vav_64f, n8_ownvormSaxpy_vav_64f_S2);
}
VormStatus n8_ownOMP_vormSaxpy_vav_32f_L(SAXPY_VAV_PARAMS_L(float))
{
    return team(saxpyVavL(SAXPY_VAV_ARGS_L), n8_ownvormSaxpy_vav_32f_L, n8_ownvormSaxpy_vav_32f_LS2);
}
VormStatus n8_ownOMP_vormSaxpy_vav_64f_L(SAXPY_VAV_PARAMS_L(double))
{
    return team(saxpyVavL(SAXPY_VAV_ARGS_L), n8_ownvormSaxpy_vav_64f_L, n8_ownvormSaxpy_vav_64f_LS2);
}
VormStatus n8_ownOMP_vormSaxpy_vav_32f_P(SAXPY_VAV_PARAMS_P(float))
{
    return team(saxpyVavP(SAXPY_VAV_ARGS_P), n8_ownvormSaxpy_vav_32f_P);
}
VormStatus n8_ownOMP_vormSaxpy_vav_64f_P(SAXPY_VAV_PARAMS_P(double))
{
    return team(saxpyVavP(SAXPY_VAV_ARGS_P), n8_ownvormSaxpy_vav_64f_P);
}
}
