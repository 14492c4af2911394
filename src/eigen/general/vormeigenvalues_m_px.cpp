// vormEigenValues_m: public layers.

#include "eigen/general/eigen_values.hpp"

using namespace vorm;
using namespace vorm::eigen;

extern "C" {

VormStatus n8_vormEigenValues_m_32f(EIGEN_VALUES_M_PARAMS(float))
{
    return checked(eigenValuesM(EIGEN_VALUES_M_ARGS), n8_ownvormEigenValues_m_32f, EIGEN_VALUES_M_ARGS);
}
VormStatus n8_vormEigenValues_m_64f(EIGEN_VALUES_M_PARAMS(double))
{
    return checked(eigenValuesM(EIGEN_VALUES_M_ARGS), n8_ownvormEigenValues_m_64f, EIGEN_VALUES_M_ARGS);
}
VormStatus n8_vormEigenValues_m_32f_P(EIGEN_VALUES_M_PARAMS_P(float))
{
    return checked(eigenValuesMP(EIGEN_VALUES_M_ARGS_P), n8_ownvormEigenValues_m_32f_P, EIGEN_VALUES_M_ARGS_P);
}
VormStatus n8_vormEigenValues_m_64f_P(EIGEN_VALUES_M_PARAMS_P(double))
{
    return checked(eigenValuesMP(EIGEN_VALUES_M_ARGS_P), n8_ownvormEigenValues_m_64f_P, EIGEN_VALUES_M_ARGS_P);
}
}
