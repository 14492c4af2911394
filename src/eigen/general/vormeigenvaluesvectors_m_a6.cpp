// vormEigenValuesVectors_m: the kernels, one for each layout, single precision.

#include "eigen/general/eigen_vectors_calls.hpp"

using namespace vorm;
using namespace vorm::eigen;

extern "C" {

VormStatus n8_ownvormEigenValuesVectors_m_32f(EIGEN_SIDES_M_PARAMS(float))
{
    return eigenVectorsKernel<Sides::both>(eigenSidesM(EIGEN_SIDES_M_ARGS));
}
VormStatus n8_ownvormEigenValuesVectors_m_32f_P(EIGEN_SIDES_M_PARAMS_P(float))
{
    return eigenVectorsKernel<Sides::both>(eigenSidesMP(EIGEN_SIDES_M_ARGS_P));
}
}
