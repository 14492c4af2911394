// vormEigenValuesVectorsSym_ma: team-parallel drivers.

#include "eigen/sym/values_vectors_sym.hpp"
#include "frame/driver.hpp"

using namespace vorm;
using namespace vorm::eigen::sym;

extern "C" {

VormStatus n8_ownOMP_vormEigenValuesVectorsSym_ma_32f(VECTORS_SYM_MA_PARAMS(float))
{
    return team<Kernels::canFail>(vectorsMa(VECTORS_SYM_MA_ARGS), n8_ownvormEigenValuesVectorsSym_ma_32f,
                                  n8_ownvormEigenValuesVectorsSym_ma_32f_S2);
}
VormStatus n8_ownOMP_vormEigenValuesVectorsSym_ma_64f(VECTORS_SYM_MA_PARAMS(double))
{
    return team<Kernels::canFail>(vectorsMa(VECTORS_SYM_MA_ARGS), n8_ownvormEigenValuesVectorsSym_ma_64f,
                                  n8_ownvormEigenValuesVectorsSym_ma_64f_S2);
}
VormStatus n8_ownOMP_vormEigenValuesVectorsSym_ma_32f_L(VECTORS_SYM_MA_PARAMS_L(float))
{
    return team<Kernels::canFail>(vectorsMaL(VECTORS_SYM_MA_ARGS_L), n8_ownvormEigenValuesVectorsSym_ma_32f_L,
                                  n8_ownvormEigenValuesVectorsSym_ma_32f_LS2);
}
VormStatus n8_ownOMP_vormEigenValuesVectorsSym_ma_64f_L(VECTORS_SYM_MA_PARAMS_L(double))
{
    return team<Kernels::canFail>(vectorsMaL(VECTORS_SYM_MA_ARGS_L), n8_ownvormEigenValuesVectorsSym_ma_64f_L,
                                  n8_ownvormEigenValuesVectorsSym_ma_64f_LS2);
}
VormStatus n8_ownOMP_vormEigenValuesVectorsSym_ma_32f_P(VECTORS_SYM_MA_PARAMS_P(float))
{
    return team<Kernels::canFail>(vectorsMaP(VECTORS_SYM_MA_ARGS_P), n8_ownvormEigenValuesVectorsSym_ma_32f_P);
}
VormStatus n8_ownOMP_vormEigenValuesVectorsSym_ma_64f_P(VECTORS_SYM_MA_PARAMS_P(double))
{
    return team<Kernels::canFail>(vectorsMaP(VECTORS_SYM_MA_ARGS_P), n8_ownvormEigenValuesVectorsSym_ma_64f_P);
}
}
