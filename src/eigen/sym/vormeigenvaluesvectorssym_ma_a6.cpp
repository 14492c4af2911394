// vormEigenValuesVectorsSym_ma: the kernels for contiguous elements, single precision.

#include "eigen/sym/values_vectors_sym_calls.hpp"

using namespace vorm;
using namespace vorm::eigen::sym;

extern "C" {

VormStatus n8_ownvormEigenValuesVectorsSym_ma_32f(VECTORS_SYM_MA_PARAMS(float))
{
    return contiguousKernel(vectorsMa(VECTORS_SYM_MA_ARGS));
}
VormStatus n8_ownvormEigenValuesVectorsSym_ma_32f_L(VECTORS_SYM_MA_PARAMS_L(float))
{
    return contiguousKernel(vectorsMaL(VECTORS_SYM_MA_ARGS_L));
}
}
