// vormEigenValuesSym_m: the kernel for contiguous elements, single precision.

#include "eigen/sym/values_sym_calls.hpp"

using namespace vorm;
using namespace vorm::eigen::sym;

extern "C" {

VormStatus n8_ownvormEigenValuesSym_m_32f(VALUES_SYM_M_PARAMS(float))
{
    return contiguousKernel(valuesM(VALUES_SYM_M_ARGS));
}
}
