// vormEigenValues_ma: team-parallel drivers.

#include "eigen/general/eigen_values.hpp"
#include "frame/driver.hpp"

using namespace vorm;
using namespace vorm::eigen;

extern "C" {

VormStatus n8_ownOMP_vormEigenValues_ma_32f(EIGEN_VALUES_MA_PARAMS(float))
{
    return team<Kernels::canFail>(eigenValuesMa(EIGEN_VALUES_MA_ARGS), n8_ownvormEigenValues_ma_32f);
}
VormStatus n8_ownOMP_vormEigenValues_ma_64f(EIGEN_VALUES_MA_PARAMS(double))
{
    return team<Kernels::canFail>(eigenValuesMa(EIGEN_VALUES_MA_ARGS), n8_ownvormEigenValues_ma_64f);
}
VormStatus n8_ownOMP_vormEigenValues_ma_32f_L(EIGEN_VALUES_MA_PARAMS_L(float))
{
    return team<Kernels::canFail>(eigenValuesMaL(EIGEN_VALUES_MA_ARGS_L), n8_ownvormEigenValues_ma_32f_L);
}
VormStatus n8_ownOMP_vormEigenValues_ma_64f_L(EIGEN_VALUES_MA_PARAMS_L(double))
{
    return team<Kernels::canFail>(eigenValuesMaL(EIGEN_VALUES_MA_ARGS_L), n8_ownvormEigenValues_ma_64f_L);
}
VormStatus n8_ownOMP_vormEigenValues_ma_32f_P(EIGEN_VALUES_MA_PARAMS_P(float))
{
    return team<Kernels::canFail>(eigenValuesMaP(EIGEN_VALUES_MA_ARGS_P), n8_ownvormEigenValues_ma_32f_P);
}
VormStatus n8_ownOMP_vormEigenValues_ma_64f_P(EIGEN_VALUES_MA_PARAMS_P(double))
{
    return team<Kernels::canFail>(eigenValuesMaP(EIGEN_VALUES_MA_ARGS_P), n8_ownvormEigenValues_ma_64f_P);
}
}
