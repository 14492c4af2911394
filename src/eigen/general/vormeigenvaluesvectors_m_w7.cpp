// vormEigenValuesVectors_m: the kernels, one for each layout, double precision.

#include "eigen/general/eigen_vectors_calls.hpp"

using namespace vorm;
using namespace vorm::eigen;

extern "C" {

VormStatus n8_ownvormEigenValuesVectors_m_64f(EIGEN_SIDES_M_PARAMS(double))
{
    return eigenVectorsKernel<Sides::both>(eigenSidesM(EIGEN_SIDES_M_ARGS));
}
VormStatus n8_ownvormEigenValuesVectors_m_64f_P(EIGEN_SIDES_M_PARAMS_P(double))
{
    return eigenVectorsKernel<Sides::both>(eigenSidesMP(EIGEN_SIDES_M_ARGS_P));
}
}
