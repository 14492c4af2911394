// vormGaxpy_mva: team-parallel drivers.

#include "frame/driver.hpp"
#include "products/shapes/gaxpy_mva.hpp"

using namespace vorm;
using namespace vorm::products;

extern "C" {

VormStatus n8_ownOMP_vormGaxpy_mva_32f(GAXPY_MVA_PARAMS(float))
{
    return team(gaxpyMva(GAXPY_MVA_ARGS), n8_ownvormGaxpy_mva_32f, n8_ownvormGaxpy_mva_32f_S2);
}
VormStatus n8_ownOMP_vormGaxpy_mva_64f(GAXPY_MVA_PARAMS(double))
{
    return team(gaxpyMva(GAXPY_MVA_ARGS), n8_ownvormGaxpy_mva_64f, n8_ownvormGaxpy_mva_64f_S2);
}
VormStatus n8_ownOMP_vormGaxpy_mva_32f_L(GAXPY_MVA_PARAMS_L(float))
{
    return team(gaxpyMvaL(GAXPY_MVA_ARGS_L), n8_ownvormGaxpy_mva_32f_L, n8_ownvormGaxpy_mva_32f_LS2);
}
VormStatus n8_ownOMP_vormGaxpy_mva_64f_L(GAXPY_MVA_PARAMS_L(double))
{
    return team(gaxpyMvaL(GAXPY_MVA_ARGS_L), n8_ownvormGaxpy_mva_64f_L, n8_ownvormGaxpy_mva_64f_LS2);
}
VormStatus n8_ownOMP_vormGaxpy_mva_32f_P(GAXPY_MVA_PARAMS_P(float))
{
    return team(gaxpyMvaP(GAXPY_MVA_ARGS_P), n8_ownvormGaxpy_mva_32f_P);
}
VormStatus n8_ownOMP_vormGaxpy_mva_64f_P(GAXPY_MVA_PARAMS_P(double))
{
    return team(gaxpyMvaP(GAXPY_MVA_ARGS_P), n8_ownvormGaxpy_mva_64f_P);
}
}
