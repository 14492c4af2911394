// vormEigenValuesVectorsLeft_m: public layers.

#include "eigen/general/eigen_vectors.hpp"

using namespace vorm;
using namespace vorm::eigen;

extern "C" {

VormStatus n8_vormEigenValuesVectorsLeft_m_32f(EIGEN_SIDE_M_PARAMS(float))
{
    return checked(eigenSideM(EIGEN_SIDE_M_ARGS), n8_ownvormEigenValuesVectorsLeft_m_32f, EIGEN_SIDE_M_ARGS);
}
VormStatus n8_vormEigenValuesVectorsLeft_m_64f(EIGEN_SIDE_M_PARAMS(double))
{
    return checked(eigenSideM(EIGEN_SIDE_M_ARGS), n8_ownvormEigenValuesVectorsLeft_m_64f, EIGEN_SIDE_M_ARGS);
}
VormStatus n8_vormEigenValuesVectorsLeft_m_32f_P(EIGEN_SIDE_M_PARAMS_P(float))
{
    return checked(eigenSideMP(EIGEN_SIDE_M_ARGS_P), n8_ownvormEigenValuesVectorsLeft_m_32f_P, EIGEN_SIDE_M_ARGS_P);
}
VormStatus n8_vormEigenValuesVectorsLeft_m_64f_P(EIGEN_SIDE_M_PARAMS_P(double))
{
    return checked(eigenSideMP(EIGEN_SIDE_M_ARGS_P), n8_ownvormEigenValuesVectorsLeft_m_64f_P, EIGEN_SIDE_M_ARGS_P);
}
}
