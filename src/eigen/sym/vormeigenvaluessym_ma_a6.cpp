// vormEigenValuesSym_ma: the kernels for contiguous elements, single precision.

#include "eigen/sym/values_sym_calls.hpp"

using namespace vorm;
using namespace vorm::eigen::sym;

extern "C" {

VormStatus n8_ownvormEigenValuesSym_ma_32f(VALUES_SYM_MA_PARAMS(float))
{
    return contiguousKernel(valuesMa(VALUES_SYM_MA_ARGS));
}
VormStatus n8_ownvormEigenValuesSym_ma_32f_L(VALUES_SYM_MA_PARAMS_L(float))
{
    return contiguousKernel(valuesMaL(VALUES_SYM_MA_ARGS_L));
}
}
