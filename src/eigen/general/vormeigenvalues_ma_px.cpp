// vormEigenValues_ma: public layers.

#include "eigen/general/eigen_values.hpp"

using namespace vorm;
using namespace vorm::eigen;

extern "C" {

VormStatus n8_vormEigenValues_ma_32f(EIGEN_VALUES_MA_PARAMS(float))
{
    return checked<from(251)>(eigenValuesMa(EIGEN_VALUES_MA_ARGS), n8_ownOMP_vormEigenValues_ma_32f,
                              n8_ownvormEigenValues_ma_32f, EIGEN_VALUES_MA_ARGS);
}
VormStatus n8_vormEigenValues_ma_64f(EIGEN_VALUES_MA_PARAMS(double))
{
    return checked<from(251)>(eigenValuesMa(EIGEN_VALUES_MA_ARGS), n8_ownOMP_vormEigenValues_ma_64f,
                              n8_ownvormEigenValues_ma_64f, EIGEN_VALUES_MA_ARGS);
}
VormStatus n8_vormEigenValues_ma_32f_L(EIGEN_VALUES_MA_PARAMS_L(float))
{
    return checked<from(251)>(eigenValuesMaL(EIGEN_VALUES_MA_ARGS_L), n8_ownOMP_vormEigenValues_ma_32f_L,
                              n8_ownvormEigenValues_ma_32f_L, EIGEN_VALUES_MA_ARGS_L);
}
VormStatus n8_vormEigenValues_ma_64f_L(EIGEN_VALUES_MA_PARAMS_L(double))
{
    return checked<from(251)>(eigenValuesMaL(EIGEN_VALUES_MA_ARGS_L), n8_ownOMP_vormEigenValues_ma_64f_L,
                              n8_ownvormEigenValues_ma_64f_L, EIGEN_VALUES_MA_ARGS_L);
}
VormStatus n8_vormEigenValues_ma_32f_P(EIGEN_VALUES_MA_PARAMS_P(float))
{
    return checked<from(251)>(eigenValuesMaP(EIGEN_VALUES_MA_ARGS_P), n8_ownOMP_vormEigenValues_ma_32f_P,
                              n8_ownvormEigenValues_ma_32f_P, EIGEN_VALUES_MA_ARGS_P);
}
VormStatus n8_vormEigenValues_ma_64f_P(EIGEN_VALUES_MA_PARAMS_P(double))
{
    return checked<from(251)>(eigenValuesMaP(EIGEN_VALUES_MA_ARGS_P), n8_ownOMP_vormEigenValues_ma_64f_P,
                              n8_ownvormEigenValues_ma_64f_P, EIGEN_VALUES_MA_ARGS_P);
}
}
