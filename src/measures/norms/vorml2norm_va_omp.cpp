// vormL2Norm_va: team-parallel drivers.

#include "frame/driver.hpp"
#include "measures/norms/l2norm.hpp"

using namespace vorm;
using namespace vorm::measures;

extern "C" {

VormStatus n8_ownOMP_vormL2Norm_va_32f(L2_VA_PARAMS(float))
{
    return team(l2NormVa(L2_VA_ARGS), n8_ownvormL2Norm_va_32f, n8_ownvormL2Norm_va_32f_S2);
}
VormStatus n8_ownOMP_vormL2Norm_va_64f(L2_VA_PARAMS(double))
{
    return team(l2NormVa(L2_VA_ARGS), n8_ownvormL2Norm_va_64f, n8_ownvormL2Norm_va_64f_S2);
}
VormStatus n8_ownOMP_vormL2Norm_va_32f_L(L2_VA_PARAMS_L(float))
{
    return team(l2NormVaL(L2_VA_ARGS_L), n8_ownvormL2Norm_va_32f_L, n8_ownvormL2Norm_va_32f_LS2);
}
VormStatus n8_ownOMP_vormL2Norm_va_64f_L(L2_VA_PARAMS_L(double))
{
    return team(l2NormVaL(L2_VA_ARGS_L), n8_ownvormL2Norm_va_64f_L, n8_ownvormL2Norm_va_64f_LS2);
}
VormStatus n8_ownOMP_vormL2Norm_va_32f_P(L2_VA_PARAMS_P(float))
{
    return team(l2NormVaP(L2_VA_ARGS_P), n8_ownvormL2Norm_va_32f_P);
}
VormStatus n8_ownOMP_vormL2Norm_va_64f_P(L2_VA_PARAMS_P(double))
{
    return team(l2NormVaP(L2_VA_ARGS_P), n8_ownvormL2Norm_va_64f_P);
}
}
