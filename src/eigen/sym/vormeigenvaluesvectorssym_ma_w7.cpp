// vormEigenValuesVectorsSym_ma: the kernels for contiguous elements, double precision.

#include "eigen/sym/values_vectors_sym_calls.hpp"

using namespace vorm;
using namespace vorm::eigen::sym;

extern "C" {

VormStatus n8_ownvormEigenValuesVectorsSym_ma_64f(VECTORS_SYM_MA_PARAMS(double))
{
    return contiguousKernel(vectorsMa(VECTORS_SYM_MA_ARGS));
}
VormStatus n8_ownvormEigenValuesVectorsSym_ma_64f_L(VECTORS_SYM_MA_PARAMS_L(double))
{
    return contiguousKernel(vectorsMaL(VECTORS_SYM_MA_ARGS_L));
}
}
