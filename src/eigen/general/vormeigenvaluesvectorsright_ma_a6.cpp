// vormEigenValuesVectorsRight_ma: the kernels, one for each layout, single precision.

#include "eigen/general/eigen_vectors_calls.hpp"

using namespace vorm;
using namespace vorm::eigen;

extern "C" {

VormStatus n8_ownvormEigenValuesVectorsRight_ma_32f(EIGEN_SIDE_MA_PARAMS(float))
{
    return eigenVectorsKernel<Sides::right>(eigenSideMa(EIGEN_SIDE_MA_ARGS));
}
VormStatus n8_ownvormEigenValuesVectorsRight_ma_32f_L(EIGEN_SIDE_MA_PARAMS_L(float))
{
    return eigenVectorsKernel<Sides::right>(eigenSideMaL(EIGEN_SIDE_MA_ARGS_L));
}
VormStatus n8_ownvormEigenValuesVectorsRight_ma_32f_P(EIGEN_SIDE_MA_PARAMS_P(float))
{
    return eigenVectorsKernel<Sides::right>(eigenSideMaP(EIGEN_SIDE_MA_ARGS_P));
}
}
