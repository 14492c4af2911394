// vormGaxpy_mvav: team-parallel drivers.

#include "frame/driver.hpp"
#include "products/shapes/gaxpy_mvav.hpp"

using namespace vorm;
using namespace vorm::products;

extern "C" {

VormStatus n8_ownOMP_vormGaxpy_mvav_32f(GAXPY_MVAV_PARAMS(float))
{
    return team(gaxpyMvav(GAXPY_MVAV_ARGS), n8_ownvormGaxpy_mvav_32f, n8_ownvormGaxpy_mvav_32f_S2);
}
VormStatus n8_ownOMP_vormGaxpy_mvav_64f(GAXPY_MVAV_PARAMS(double))
{
    return team(gaxpyMvav(GAXPY_MVAV_ARGS), n8_ownvormGaxpy_mvav_64f, n8_ownvormGaxpy_mvav_64f_S2);
}
VormStatus n8_ownOMP_vormGaxpy_mvav_32f_L(GAXPY_MVAV_PARAMS_L(float))
{
    return team(gaxpyMvavL(GAXPY_MVAV_ARGS_L), n8_ownvormGaxpy_mvav_32f_L, n8_ownvormGaxpy_mvav_32f_LS2);
}
VormStatus n8_ownOMP_vormGaxpy_mvav_64f_L(GAXPY_MVAV_PARAMS_L(double))
{
    return team(gaxpyMvavL(GAXPY_MVAV_ARGS_L), n8_ownvormGaxpy_mvav_64f_L, n8_ownvormGaxpy_mvav_64f_LS2);
}
VormStatus n8_ownOMP_vormGaxpy_mvav_32f_P(GAXPY_MVAV_PARAMS_P(float))
{
    return team(gaxpyMvavP(GAXPY_MVAV_ARGS_P), n8_ownvormGaxpy_mvav_32f_P);
}
VormStatus n8_ownOMP_vormGaxpy_mvav_64f_P(GAXPY_MVAV_PARAMS_P(double))
{
    return team(gaxpyMvavP(GAXPY_MVAV_ARGS_P), n8_ownvormGaxpy_mvav_64f_P);
}
}
