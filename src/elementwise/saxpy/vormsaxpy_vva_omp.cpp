// vormSaxpy_vva: team-parallel drivers.

#include "elementwise/shapes/saxpy_vva.hpp"
#include "frame/driver.hpp"

using namespace vorm;
using namespace vorm::elementwise;

extern "C" {

VormStatus n8_ownOMP_vormSaxpy_vva_32f(SAXPY_VVA_PARAMS(float))
{
    return team(saxpyVva(SAXPY_VVA_ARGS), n8_ownvormSaxpy_vva_32f, n8_ownvormSaxpy_vva_32f_S2);
}
VormStatus n8_ownOMP_vormSaxpy_vva_64f(SAXPY_VVA_PARAMS(double))
{
    return team(saxpyVva(SAXPY_VVA_ARGS), n8_ownvormSaxpy_vva_64f, n8_ownvormSaxpy_vva_64f_S2);
}
VormStatus n8_ownOMP_vormSaxpy_vva_32f_L(SAXPY_VVA_PARAMS_L(float))
{
    return team(saxpyVvaL(SAXPY_VVA_ARGS_L), n8_ownvormSaxpy_vva_32f_L, n8_ownvormSaxpy_vva_32f_LS2);
}
VormStatus n8_ownOMP_vormSaxpy_vva_64f_L(SAXPY_VVA_PARAMS_L(double))
{
    return team(saxpyVvaL(SAXPY_VVA_ARGS_L), n8_ownvormSaxpy_vva_64f_L, n8_ownvormSaxpy_vva_64f_LS2);
}
VormStatus n8_ownOMP_vormSaxpy_vva_32f_P(SAXPY_VVA_PARAMS_P(float))
{
    return team(saxpyVvaP(SAXPY_VVA_ARGS_P), n8_ownvormSaxpy_vva_32f_P);
}
VormStatus n8_ownOMP_vormSaxpy_vva_64f_P(SAXPY_VVA_PARAMS_P(double))
{
    return team(saxpyVvaP(SAXPY_VVA_ARGS_P), n8_ownvormSaxpy_vva_64f_P);
}
}
