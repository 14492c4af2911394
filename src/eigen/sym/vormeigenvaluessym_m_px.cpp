// vormEigenValuesSym_m: public layers, and the kernels for elements anywhere.

#include "eigen/sym/values_sym_calls.hpp"

using namespace vorm;
using namespace vorm::eigen::sym;

extern "C" {

VormStatus n8_vormEigenValuesSym_m_32f(VALUES_SYM_M_PARAMS(float))
{
    return checked(valuesM(VALUES_SYM_M_ARGS), n8_ownvormEigenValuesSym_m_32f, n8_ownvormEigenValuesSym_m_32f_S2,
                   VALUES_SYM_M_ARGS);
}
VormStatus n8_vormEigenValuesSym_m_64f(VALUES_SYM_M_PARAMS(double))
{
    return checked(valuesM(VALUES_SYM_M_ARGS), n8_ownvormEigenValuesSym_m_64f, n8_ownvormEigenValuesSym_m_64f_S2,
                   VALUES_SYM_M_ARGS);
}
VormStatus n8_vormEigenValuesSym_m_32f_P(VALUES_SYM_M_PARAMS_P(float))
{
    return checked(valuesMP(VALUES_SYM_M_ARGS_P), n8_ownvormEigenValuesSym_m_32f_P, VALUES_SYM_M_ARGS_P);
}
VormStatus n8_vormEigenValuesSym_m_64f_P(VALUES_SYM_M_PARAMS_P(double))
{
    return checked(valuesMP(VALUES_SYM_M_ARGS_P), n8_ownvormEigenValuesSym_m_64f_P, VALUES_SYM_M_ARGS_P);
}

VormStatus n8_ownvormEigenValuesSym_m_32f_S2(VALUES_SYM_M_PARAMS(float))
{
    return anyStrideKernel(valuesM(VALUES_SYM_M_ARGS));
}
VormStatus n8_ownvormEigenValuesSym_m_64f_S2(VALUES_SYM_M_PARAMS(double))
{
    return anyStrideKernel(valuesM(VALUES_SYM_M_ARGS));
}
VormStatus n8_ownvormEigenValuesSym_m_32f_P(VALUES_SYM_M_PARAMS_P(float))
{
    return anyStrideKernel(valuesMP(VALUES_SYM_M_ARGS_P));
}
VormStatus n8_ownvormEigenValuesSym_m_64f_P(VALUES_SYM_M_PARAMS_P(double))
{
    return anyStrideKernel(valuesMP(VALUES_SYM_M_ARGS_P));
}
}
