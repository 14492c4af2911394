// vormSaxpy_vava: team-parallel drivers.

#include "elementwise/shapes/saxpy_vava.hpp"
#include "frame/driver.hpp"

using namespace vorm;
using namespace vorm::elementwise;

extern "C" {

VormStatus n8_ownOMP_vormSaxpy_vava_32f(SAXPY_VAVA_PARAMS(float))
{
    return team(saxpyVava(SAXPY_VAVA_ARGS), n8_ownvormSaxpy_vava_32f, n8_ownvormSaxpy_vava_32f_S2);
}
VormStatus n8_ownOMP_vormSaxpy_vava_64f(SAXPY_VAVA_PARAMS(double))
{
    return team(saxpyVava(SAXPY_VAVA_ARGS), n8_ownvormSaxpy_vava_64f, n8_ownvormSaxpy_vava_64f_S2);
}
VormStatus n8_ownOMP_vormSaxpy_vava_32f_L(SAXPY_VAVA_PARAMS_L(float))
{
    return team(saxpyVavaL(SAXPY_VAVA_ARGS_L), n8_ownvormSaxpy_vava_32f_L, n8_ownvormSaxpy_vava_32f_LS2);
}
VormStatus n8_ownOMP_vormSaxpy_vava_64f_L(SAXPY_VAVA_PARAMS_L(double))
{
    return team(saxpyVavaL(SAXPY_VAVA_ARGS_L), n8_ownvormSaxpy_vava_64f_L, n8_ownvormSaxpy_vava_64f_LS2);
}
VormStatus n8_ownOMP_vormSaxpy_vava_32f_P(SAXPY_VAVA_PARAMS_P(float))
{
    return team(saxpyVavaP(SAXPY_VAVA_ARGS_P), n8_ownvormSaxpy_vava_32f_P);
}
VormStatus n8_ownOMP_vormSaxpy_vava_64f_P(SAXPY_VAVA_PARAMS_P(double))
{
    return team(saxpyVavaP(SAXPY_VAVA_ARGS_P), n8_ownvormSaxpy_vava_64f_P);
}
}
