// vormEigenValuesVectors_m: public layers.

#include "eigen/general/eigen_vectors.hpp"

using namespace vorm;
using namespace vorm::eigen;

extern "C" {

VormStatus n8_vormEigenValuesVectors_m_32f(EIGEN_SIDES_M_PARAMS(float))
{
    return checked(eigenSidesM(EIGEN_SIDES_M_ARGS), n8_ownvormEigenValuesVectors_m_32f, EIGEN_SIDES_M_ARGS);
}
VormStatus n8_vormEigenValuesVectors_m_64f(EIGEN_SIDES_M_PARAMS(double))
{
    return checked(eigenSidesM(EIGEN_SIDES_M_ARGS), n8_ownvormEigenValuesVectors_m_64f, EIGEN_SIDES_M_ARGS);
}
VormStatus n8_vormEigenValuesVectors_m_32f_P(EIGEN_SIDES_M_PARAMS_P(float))
{
    return checked(eigenSidesMP(EIGEN_SIDES_M_ARGS_P), n8_ownvormEigenValuesVectors_m_32f_P, EIGEN_SIDES_M_ARGS_P);
}
VormStatus n8_vormEigenValuesVectors_m_64f_P(EIGEN_SIDES_M_PARAMS_P(double))
{
    return checked(eigenSidesMP(EIGEN_SIDES_M_ARGS_P), n8_ownvormEigenValuesVectors_m_64f_P, EIGEN_SIDES_M_ARGS_P);
}
}
