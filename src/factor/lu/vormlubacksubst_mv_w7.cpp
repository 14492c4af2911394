// vormLUBackSubst_mv: the kernel for contiguous elements, double precision.

#include "factor/lu/lu_back_subst_calls.hpp"

using namespace vorm;
using namespace vorm::factor;

extern "C" {

VormStatus n8_ownvormLUBackSubst_mv_64f(LU_MV_PARAMS(double)) { return contiguousKernel(luMv(LU_MV_ARGS)); }
}
