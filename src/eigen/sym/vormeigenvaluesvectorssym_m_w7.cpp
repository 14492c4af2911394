// vormEigenValuesVectorsSym_m: the kernel for contiguous elements, double precision.

#include "eigen/sym/values_vectors_sym_calls.hpp"

using namespace vorm;
using namespace vorm::eigen::sym;

extern "C" {

VormStatus n8_ownvormEigenValuesVectorsSym_m_64f(VECTORS_SYM_M_PARAMS(double))
{
    return contiguousKernel(vectorsM(VECTORS_SYM_M_ARGS));
}
}
