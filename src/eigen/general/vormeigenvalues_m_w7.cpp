// vormEigenValues_m: the kernels, one for each layout, double precision.

#include "eigen/general/eigen_values_calls.hpp"

using namespace vorm;
using namespace vorm::eigen;

extern "C" {

VormStatus n8_ownvormEigenValues_m_64f(EIGEN_VALUES_M_PARAMS(double))
{
    return eigenValuesKernel(eigenValuesM(EIGEN_VALUES_M_ARGS));
}
VormStatus n8_ownvormEigenValues_m_64f_P(EIGEN_VALUES_M_PARAMS_P(double))
{
    return eigenValuesKernel(eigenValuesMP(EIGEN_VALUES_M_ARGS_P));
}
}
