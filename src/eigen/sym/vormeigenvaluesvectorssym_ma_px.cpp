// vormEigenValuesVectorsSym_ma: public layers, and the kernels for elements anywhere.

#include "eigen/sym/values_vectors_sym_calls.hpp"

using namespace vorm;
using namespace vorm::eigen::sym;

extern "C" {

VormStatus n8_vormEigenValuesVectorsSym_ma_32f(VECTORS_SYM_MA_PARAMS(float))
{
    return checked<from(701)>(vectorsMa(VECTORS_SYM_MA_ARGS), n8_ownOMP_vormEigenValuesVectorsSym_ma_32f,
                              n8_ownvormEigenValuesVectorsSym_ma_32f, n8_ownvormEigenValuesVectorsSym_ma_32f_S2,
                              VECTORS_SYM_MA_ARGS);
}
VormStatus n8_vormEigenValuesVectorsSym_ma_64f(VECTORS_SYM_MA_PARAMS(double))
{
    return checked<from(701)>(vectorsMa(VECTORS_SYM_MA_ARGS), n8_ownOMP_vormEigenValuesVectorsSym_ma_64f,
                              n8_ownvormEigenValuesVectorsSym_ma_64f, n8_ownvormEigenValuesVectorsSym_ma_64f_S2,
                              VECTORS_SYM_MA_ARGS);
}
VormStatus n8_vormEigenValuesVectorsSym_ma_32f_L(VECTORS_SYM_MA_PARAMS_L(float))
{
    return checked<from(701)>(vectorsMaL(VECTORS_SYM_MA_ARGS_L), n8_ownOMP_vormEigenValuesVectorsSym_ma_32f_L,
                              n8_ownvormEigenValuesVectorsSym_ma_32f_L, n8_ownvormEigenValuesVectorsSym_ma_32f_LS2,
                              VECTORS_SYM_MA_ARGS_L);
}
VormStatus n8_vormEigenValuesVectorsSym_ma_64f_L(VECTORS_SYM_MA_PARAMS_L(double))
{
    return checked<from(701)>(vectorsMaL(VECTORS_SYM_MA_ARGS_L), n8_ownOMP_vormEigenValuesVectorsSym_ma_64f_L,
                              n8_ownvormEigenValuesVectorsSym_ma_64f_L, n8_ownvormEigenValuesVectorsSym_ma_64f_LS2,
                              VECTORS_SYM_MA_ARGS_L);
}
VormStatus n8_vormEigenValuesVectorsSym_ma_32f_P(VECTORS_SYM_MA_PARAMS_P(float))
{
    return checked<from(701)>(vectorsMaP(VECTORS_SYM_MA_ARGS_P), n8_ownOMP_vormEigenValuesVectorsSym_ma_32f_P,
                              n8_ownvormEigenValuesVectorsSym_ma_32f_P, VECTORS_SYM_MA_ARGS_P);
}
VormStatus n8_vormEigenValuesVectorsSym_ma_64f_P(VECTORS_SYM_MA_PARAMS_P(double))
{
    return checked<from(701)>(vectorsMaP(VECTORS_SYM_MA_ARGS_P), n8_ownOMP_vormEigenValuesVectorsSym_ma_64f_P,
                              n8_ownvormEigenValuesVectorsSym_ma_64f_P, VECTORS_SYM_MA_ARGS_P);
}

VormStatus n8_ownvormEigenValuesVectorsSym_ma_32f_S2(VECTORS_SYM_MA_PARAMS(float))
{
    return anyStrideKernel(vectorsMa(VECTORS_SYM_MA_ARGS));
}
VormStatus n8_ownvormEigenValuesVectorsSym_ma_64f_S2(VECTORS_SYM_MA_PARAMS(double))
{
    return anyStrideKernel(vectorsMa(VECTORS_SYM_MA_ARGS));
}
VormStatus n8_ownvormEigenValuesVectorsSym_ma_32f_LS2(VECTORS_SYM_MA_PARAMS_L(float))
{
    return anyStrideKernel(vectorsMaL(VECTORS_SYM_MA_ARGS_L));
}
VormStatus n8_ownvormEigenValuesVectorsSym_ma_64f_LS2(VECTORS_SYM_MA_PARAMS_L(double))
{
    return anyStrideKernel(vectorsMaL(VECTORS_SYM_MA_ARGS_L));
}
VormStatus n8_ownvormEigenValuesVectorsSym_ma_32f_P(VECTORS_SYM_MA_PARAMS_P(float))
{
    return pointerKernel(vectorsMaP(VECTORS_SYM_MA_ARGS_P));
}
VormStatus n8_ownvormEigenValuesVectorsSym_ma_64f_P(VECTORS_SYM_MA_PARAMS_P(double))
{
    return pointerKernel(vectorsMaP(VECTORS_SYM_MA_ARGS_P));
}
}
