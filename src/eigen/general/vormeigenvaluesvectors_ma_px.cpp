// vormEigenValuesVectors_ma: public layers.

#include "eigen/general/eigen_vectors.hpp"

using namespace vorm;
using namespace vorm::eigen;

extern "C" {

VormStatus n8_vormEigenValuesVectors_ma_32f(EIGEN_SIDES_MA_PARAMS(float))
{
    return checked<from(501)>(eigenSidesMa(EIGEN_SIDES_MA_ARGS), n8_ownOMP_vormEigenValuesVectors_ma_32f,
                              n8_ownvormEigenValuesVectors_ma_32f, EIGEN_SIDES_MA_ARGS);
}
VormStatus n8_vormEigenValuesVectors_ma_64f(EIGEN_SIDES_MA_PARAMS(double))
{
    return checked<from(501)>(eigenSidesMa(EIGEN_SIDES_MA_ARGS), n8_ownOMP_vormEigenValuesVectors_ma_64f,
                              n8_ownvormEigenValuesVectors_ma_64f, EIGEN_SIDES_MA_ARGS);
}
VormStatus n8_vormEigenValuesVectors_ma_32f_L(EIGEN_SIDES_MA_PARAMS_L(float))
{
    return checked<from(501)>(eigenSidesMaL(EIGEN_SIDES_MA_ARGS_L), n8_ownOMP_vormEigenValuesVectors_ma_32f_L,
                              n8_ownvormEigenValuesVectors_ma_32f_L, EIGEN_SIDES_MA_ARGS_L);
}
VormStatus n8_vormEigenValuesVectors_ma_64f_L(EIGEN_SIDES_MA_PARAMS_L(double))
{
    return checked<from(501)>(eigenSidesMaL(EIGEN_SIDES_MA_ARGS_L), n8_ownOMP_vormEigenValuesVectors_ma_64f_L,
                              n8_ownvormEigenValuesVectors_ma_64f_L, EIGEN_SIDES_MA_ARGS_L);
}
VormStatus n8_vormEigenValuesVectors_ma_32f_P(EIGEN_SIDES_MA_PARAMS_P(float))
{
    return checked<from(501)>(eigenSidesMaP(EIGEN_SIDES_MA_ARGS_P), n8_ownOMP_vormEigenValuesVectors_ma_32f_P,
                              n8_ownvormEigenValuesVectors_ma_32f_P, EIGEN_SIDES_MA_ARGS_P);
}
VormStatus n8_vormEigenValuesVectors_ma_64f_P(EIGEN_SIDES_MA_PARAMS_P(double))
{
    return checked<from(501)>(eigenSidesMaP(EIGEN_SIDES_MA_ARGS_P), n8_ownOMP_vormEigenValuesVectors_ma_64f_P,
                              n8_ownvormEigenValuesVectors_ma_64f_P, EIGEN_SIDES_MA_ARGS_P);
}
}
