// vormEigenValuesVectorsRight_m: the kernels, one for each layout, single precision.

#include "eigen/general/eigen_vectors_calls.hpp"

using namespace vorm;
using namespace vorm::eigen;

extern "C" {

VormStatus n8_ownvormEigenValuesVectorsRight_m_32f(EIGEN_SIDE_M_PARAMS(float))
{
    return eigenVectorsKernel<Sides::right>(eigenSideM(EIGEN_SIDE_M_ARGS));
}
VormStatus n8_ownvormEigenValuesVectorsRight_m_32f_P(EIGEN_SIDE_M_PARAMS_P(float))
{
    return eigenVectorsKernel<Sides::right>(eigenSideMP(EIGEN_SIDE_M_ARGS_P));
}
}
