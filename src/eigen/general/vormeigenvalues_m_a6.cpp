// vormEigenValues_m: the kernels, one for each layout, single precision.

#include "eigen/general/eigen_values_calls.hpp"

using namespace vorm;
using namespace vorm::eigen;

extern "C" {

VormStatus n8_ownvormEigenValues_m_32f(EIGEN_VALUES_M_PARAMS(float))
{
    return eigenValuesKernel(eigenValuesM(EIGEN_VALUES_M_ARGS));
}
VormStatus n8_ownvormEigenValues_m_32f_P(EIGEN_VALUES_M_PARAMS_P(float))
{
    return eigenValuesKernel(eigenValuesMP(EIGEN_VALUES_M_ARGS_P));
}
}
