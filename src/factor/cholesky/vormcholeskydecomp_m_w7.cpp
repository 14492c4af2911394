// vormCholeskyDecomp_m: the kernel for contiguous elements, double precision.

#include "factor/cholesky/cholesky_decomp_calls.hpp"

using namespace vorm;
using namespace vorm::factor;

extern "C" {

VormStatus n8_ownvormCholeskyDecomp_m_64f(CHOLESKY_M_PARAMS(double))
{
    return contiguousKernel(choleskyM(CHOLESKY_M_ARGS));
}
}
