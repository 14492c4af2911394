// vormEigenValuesSym_ma: public layers, and the kernels for elements anywhere.

#include "eigen/sym/values_sym_calls.hpp"

using namespace vorm;
using namespace vorm::eigen::sym;

extern "C" {

VormStatus n8_vormEigenValuesSym_ma_32f(VALUES_SYM_MA_PARAMS(float))
{
    return checked<from(1001)>(valuesMa(VALUES_SYM_MA_ARGS), n8_ownOMP_vormEigenValuesSym_ma_32f,
                               n8_ownvormEigenValuesSym_ma_32f, n8_ownvormEigenValuesSym_ma_32f_S2, VALUES_SYM_MA_ARGS);
}
VormStatus n8_vormEigenValuesSym_ma_64f(VALUES_SYM_MA_PARAMS(double))
{
    return checked<from(1001)>(valuesMa(VALUES_SYM_MA_ARGS), n8_ownOMP_vormEigenValuesSym_ma_64f,
                               n8_ownvormEigenValuesSym_ma_64f, n8_ownvormEigenValuesSym_ma_64f_S2, VALUES_SYM_MA_ARGS);
}
VormStatus n8_vormEigenValuesSym_ma_32f_L(VALUES_SYM_MA_PARAMS_L(float))
{
    return checked<from(1001)>(valuesMaL(VALUES_SYM_MA_ARGS_L), n8_ownOMP_vormEigenValuesSym_ma_32f_L,
                               n8_ownvormEigenValuesSym_ma_32f_L, n8_ownvormEigenValuesSym_ma_32f_LS2,
                               VALUES_SYM_MA_ARGS_L);
}
VormStatus n8_vormEigenValuesSym_ma_64f_L(VALUES_SYM_MA_PARAMS_L(double))
{
    return checked<from(1001)>(valuesMaL(VALUES_SYM_MA_ARGS_L), n8_ownOMP_vormEigenValuesSym_ma_64f_L,
                               n8_ownvormEigenValuesSym_ma_64f_L, n8_ownvormEigenValuesSym_ma_64f_LS2,
                               VALUES_SYM_MA_ARGS_L);
}
VormStatus n8_vormEigenValuesSym_ma_32f_P(VALUES_SYM_MA_PARAMS_P(float))
{
    return checked<from(1001)>(valuesMaP(VALUES_SYM_MA_ARGS_P), n8_ownOMP_vormEigenValuesSym_ma_32f_P,
                               n8_ownvormEigenValuesSym_ma_32f_P, VALUES_SYM_MA_ARGS_P);
}
VormStatus n8_vormEigenValuesSym_ma_64f_P(VALUES_SYM_MA_PARAMS_P(double))
{
    return checked<from(1001)>(valuesMaP(VALUES_SYM_MA_ARGS_P), n8_ownOMP_vormEigenValuesSym_ma_64f_P,
                               n8_ownvormEigenValuesSym_ma_64f_P, VALUES_SYM_MA_ARGS_P);
}

VormStatus n8_ownvormEigenValuesSym_ma_32f_S2(VALUES_SYM_MA_PARAMS(float))
{
    return anyStrideKernel(valuesMa(VALUES_SYM_MA_ARGS));
}
VormStatus n8_ownvormEigenValuesSym_ma_64f_S2(VALUES_SYM_MA_PARAMS(double))
{
    return anyStrideKernel(valuesMa(VALUES_SYM_MA_ARGS));
}
VormStatus n8_ownvormEigenValuesSym_ma_32f_LS2(VALUES_SYM_MA_PARAMS_L(float))
{
    return anyStrideKernel(valuesMaL(VALUES_SYM_MA_ARGS_L));
}
VormStatus n8_ownvormEigenValuesSym_ma_64f_LS2(VALUES_SYM_MA_PARAMS_L(double))
{
    return anyStrideKernel(valuesMaL(VALUES_SYM_MA_ARGS_L));
}
VormStatus n8_ownvormEigenValuesSym_ma_32f_P(VALUES_SYM_MA_PARAMS_P(float))
{
    return pointerKernel(valuesMaP(VALUES_SYM_MA_ARGS_P));
}
VormStatus n8_ownvormEigenValuesSym_ma_64f_P(VALUES_SYM_MA_PARAMS_P(double))
{
    return pointerKernel(valuesMaP(VALUES_SYM_MA_ARGS_P));
}
}
