// vormEigenValuesSym_ma: team-parallel drivers.

#include "eigen/sym/values_sym.hpp"
#include "frame/driver.hpp"

using namespace vorm;
using namespace vorm::eigen::sym;

extern "C" {

VormStatus n8_ownOMP_vormEigenValuesSym_ma_32f(VALUES_SYM_MA_PARAMS(float))
{
    return team<Kernels::canFail>(valuesMa(VALUES_SYM_MA_ARGS), n8_ownvormEigenValuesSym_ma_32f,
                                  n8_ownvormEigenValuesSym_ma_32f_S2);
}
VormStatus n8_ownOMP_vormEigenValuesSym_ma_64f(VALUES_SYM_MA_PARAMS(double))
{
    return team<Kernels::canFail>(valuesMa(VALUES_SYM_MA_ARGS), n8_ownvormEigenValuesSym_ma_64f,
                                  n8_ownvormEigenValuesSym_ma_64f_S2);
}
VormStatus n8_ownOMP_vormEigenValuesSym_ma_32f_L(VALUES_SYM_MA_PARAMS_L(float))
{
    return team<Kernels::canFail>(valuesMaL(VALUES_SYM_MA_ARGS_L), n8_ownvormEigenValuesSym_ma_32f_L,
                                  n8_ownvormEigenValuesSym_ma_32f_LS2);
}
VormStatus n8_ownOMP_vormEigenValuesSym_ma_64f_L(VALUES_SYM_MA_PARAMS_L(double))
{
    return team<Kernels::canFail>(valuesMaL(VALUES_SYM_MA_ARGS_L), n8_ownvormEigenValuesSym_ma_64f_L,
                                  n8_ownvormEigenValuesSym_ma_64f_LS2);
}
VormStatus n8_ownOMP_vormEigenValuesSym_ma_32f_P(VALUES_SYM_MA_PARAMS_P(float))
{
    return team<Kernels::canFail>(valuesMaP(VALUES_SYM_MA_ARGS_P), n8_ownvormEigenValuesSym_ma_32f_P);
}
VormStatus n8_ownOMP_vormEigenValuesSym_ma_64f_P(VALUES_SYM_MA_PARAMS_P(double))
{
    return team<Kernels::canFail>(valuesMaP(VALUES_SYM_MA_ARGS_P), n8_ownvormEigenValuesSym_ma_64f_P);
}
}
