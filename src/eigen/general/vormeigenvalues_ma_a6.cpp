// vormEigenValues_ma: the kernels, one for each layout, single precision.

#include "eigen/general/eigen_values_calls.hpp"

using namespace vorm;
using namespace vorm::eigen;

extern "C" {

VormStatus n8_ownvormEigenValues_ma_32f(EIGEN_VALUES_MA_PARAMS(float))
{
    return eigenValuesKernel(eigenValuesMa(EIGEN_VALUES_MA_ARGS));
}
VormStatus n8_ownvormEigenValues_ma_32f_L(EIGEN_VALUES_MA_PARAMS_L(float))
{
    return eigenValuesKernel(eigenValuesMaL(EIGEN_VALUES_MA_ARGS_L));
}
VormStatus n8_ownvormEigenValues_ma_32f_P(EIGEN_VALUES_MA_PARAMS_P(float))
{
    return eigenValuesKernel(eigenValuesMaP(EIGEN_VALUES_MA_ARGS_P));
}
}
