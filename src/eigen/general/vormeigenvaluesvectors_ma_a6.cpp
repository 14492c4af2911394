// vormEigenValuesVectors_ma: the kernels, one for each layout, single precision.

#include "eigen/general/eigen_vectors_calls.hpp"

using namespace vorm;
using namespace vorm::eigen;

extern "C" {

VormStatus n8_ownvormEigenValuesVectors_ma_32f(EIGEN_SIDES_MA_PARAMS(float))
{
    return eigenVectorsKernel<Sides::both>(eigenSidesMa(EIGEN_SIDES_MA_ARGS));
}
VormStatus n8_ownvormEigenValuesVectors_ma_32f_L(EIGEN_SIDES_MA_PARAMS_L(float))
{
    return eigenVectorsKernel<Sides::both>(eigenSidesMaL(EIGEN_SIDES_MA_ARGS_L));
}
VormStatus n8_ownvormEigenValuesVectors_ma_32f_P(EIGEN_SIDES_MA_PARAMS_P(float))
{
    return eigenVectorsKernel<Sides::both>(eigenSidesMaP(EIGEN_SIDES_MA_ARGS_P));
}
}
