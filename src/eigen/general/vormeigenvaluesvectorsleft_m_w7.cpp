// vormEigenValuesVectorsLeft_m: the kernels, one for each layout, double precision.

#include "eigen/general/eigen_vectors_calls.hpp"

using namespace vorm;
using namespace vorm::eigen;

extern "C" {

VormStatus n8_ownvormEigenValuesVectorsLeft_m_64f(EIGEN_SIDE_M_PARAMS(double))
{
    return eigenVectorsKernel<Sides::left>(eigenSideM(EIGEN_SIDE_M_ARGS));
}
VormStatus n8_ownvormEigenValuesVectorsLeft_m_64f_P(EIGEN_SIDE_M_PARAMS_P(double))
{
    return eigenVectorsKernel<Sides::left>(eigenSideMP(EIGEN_SIDE_M_ARGS_P));
}
}
