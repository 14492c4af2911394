// vormCholeskyDecomp_m: the kernel for contiguous elements, single precision.

#include "factor/cholesky/cholesky_decomp_calls.hpp"

using namespace vorm;
using namespace vorm::factor;

extern "C" {

VormStatus n8_ownvormCholeskyDecomp_m_32f(CHOLESKY_M_PARAMS(float))
{
    return contiguousKernel(choleskyM(CHOLESKY_M_ARGS));
}
}
