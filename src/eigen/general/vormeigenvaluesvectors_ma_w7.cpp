// vormEigenValuesVectors_ma: the kernels, one for each layout, double precision.

#include "eigen/general/eigen_vectors_calls.hpp"

using namespace vorm;
using namespace vorm::eigen;

extern "C" {

VormStatus n8_ownvormEigenValuesVectors_ma_64f(EIGEN_SIDES_MA_PARAMS(double))
{
    return eigenVectorsKernel<Sides::both>(eigenSidesMa(EIGEN_SIDES_MA_ARGS));
}
VormStatus n8_ownvormEigenValuesVectors_ma_64f_L(EIGEN_SIDES_MA_PARAMS_L(double))
{
    return eigenVectorsKernel<Sides::both>(eigenSidesMaL(EIGEN_SIDES_MA_ARGS_L));
}
VormStatus n8_ownvormEigenValuesVectors_ma_64f_P(EIGEN_SIDES_MA_PARAMS_P(double))
{
    return eigenVectorsKernel<Sides::both>(eigenSidesMaP(EIGEN_SIDES_MA_ARGS_P));
}
}
