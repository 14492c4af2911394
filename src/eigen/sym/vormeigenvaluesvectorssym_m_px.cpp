// vormEigenValuesVectorsSym_m: public layers, and the kernels for elements anywhere.

#include "eigen/sym/values_vectors_sym_calls.hpp"

using namespace vorm;
using namespace vorm::eigen::sym;

extern "C" {

VormStatus n8_vormEigenValuesVectorsSym_m_32f(VECTORS_SYM_M_PARAMS(float))
{
    return checked(vectorsM(VECTORS_SYM_M_ARGS), n8_ownvormEigenValuesVectorsSym_m_32f,
                   n8_ownvormEigenValuesVectorsSym_m_32f_S2, VECTORS_SYM_M_ARGS);
}
VormStatus n8_vormEigenValuesVectorsSym_m_64f(VECTORS_SYM_M_PARAMS(double))
{
    return checked(vectorsM(VECTORS_SYM_M_ARGS), n8_ownvormEigenValuesVectorsSym_m_64f,
                   n8_ownvormEigenValuesVectorsSym_m_64f_S2, VECTORS_SYM_M_ARGS);
}
VormStatus n8_vormEigenValuesVectorsSym_m_32f_P(VECTORS_SYM_M_PARAMS_P(float))
{
    return checked(vectorsMP(VECTORS_SYM_M_ARGS_P), n8_ownvormEigenValuesVectorsSym_m_32f_P, VECTORS_SYM_M_ARGS_P);
}
VormStatus n8_vormEigenValuesVectorsSym_m_64f_P(VECTORS_SYM_M_PARAMS_P(double))
{
    return checked(vectorsMP(VECTORS_SYM_M_ARGS_P), n8_ownvormEigenValuesVectorsSym_m_64f_P, VECTORS_SYM_M_ARGS_P);
}

VormStatus n8_ownvormEigenValuesVectorsSym_m_32f_S2(VECTORS_SYM_M_PARAMS(float))
{
    return anyStrideKernel(vectorsM(VECTORS_SYM_M_ARGS));
}
VormStatus n8_ownvormEigenValuesVectorsSym_m_64f_S2(VECTORS_SYM_M_PARAMS(double))
{
    return anyStrideKernel(vectorsM(VECTORS_SYM_M_ARGS));
}
VormStatus n8_ownvormEigenValuesVectorsSym_m_32f_P(VECTORS_SYM_M_PARAMS_P(float))
{
    return anyStrideKernel(vectorsMP(VECTORS_SYM_M_ARGS_P));
}
VormStatus n8_ownvormEigenValuesVectorsSym_m_64f_P(VECTORS_SYM_M_PARAMS_P(double))
{
    return anyStrideKernel(vectorsMP(VECTORS_SYM_M_ARGS_P));
}
}
