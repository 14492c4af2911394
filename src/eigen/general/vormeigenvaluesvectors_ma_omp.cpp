// vormEigenValuesVectors_ma: team-parallel drivers.

#include "eigen/general/eigen_vectors.hpp"
#include "frame/driver.hpp"

using namespace vorm;
using namespace vorm::eigen;

extern "C" {

VormStatus n8_ownOMP_vormEigenValuesVectors_ma_32f(EIGEN_SIDES_MA_PARAMS(float))
{
    return team<Kernels::canFail>(eigenSidesMa(EIGEN_SIDES_MA_ARGS), n8_ownvormEigenValuesVectors_ma_32f);
}
VormStatus n8_ownOMP_vormEigenValuesVectors_ma_64f(EIGEN_SIDES_MA_PARAMS(double))
{
    return team<Kernels::canFail>(eigenSidesMa(EIGEN_SIDES_MA_ARGS), n8_ownvormEigenValuesVectors_ma_64f);
}
VormStatus n8_ownOMP_vormEigenValuesVectors_ma_32f_L(EIGEN_SIDES_MA_PARAMS_L(float))
{
    return team<Kernels::canFail>(eigenSidesMaL(EIGEN_SIDES_MA_ARGS_L), n8_ownvormEigenValuesVectors_ma_32f_L);
}
VormStatus n8_ownOMP_vormEigenValuesVectors_ma_64f_L(EIGEN_SIDES_MA_PARAMS_L(double))
{
    return team<Kernels::canFail>(eigenSidesMaL(EIGEN_SIDES_MA_ARGS_L), n8_ownvormEigenValuesVectors_ma_64f_L);
}
VormStatus n8_ownOMP_vormEigenValuesVectors_ma_32f_P(EIGEN_SIDES_MA_PARAMS_P(float))
{
    return team<Kernels::canFail>(eigenSidesMaP(EIGEN_SIDES_MA_ARGS_P), n8_ownvormEigenValuesVectors_ma_32f_P);
}
VormStatus n8_ownOMP_vormEigenValuesVectors_ma_64f_P(EIGEN_SIDES_MA_PARAMS_P(double))
{
    return team<Kernels::canFail>(eigenSidesMaP(EIGEN_SIDES_MA_ARGS_P), n8_ownvormEigenValuesVectors_ma_64f_P);
}
}
