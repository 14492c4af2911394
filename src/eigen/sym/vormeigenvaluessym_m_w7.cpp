// vormEigenValuesSym_m: the kernel for contiguous elements, double precision.

#include "eigen/sym/values_sym_calls.hpp"

using namespace vorm;
using namespace vorm::eigen::sym;

extern "C" {

VormStatus n8_ownvormEigenValuesSym_m_64f(VALUES_SYM_M_PARAMS(double))
{
    return contiguousKernel(valuesM(VALUES_SYM_M_ARGS));
}
}
